// The lines that check what the user and the world around the program see.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "player/paths.h"
#include "player/properties.h"
#include "player/script.h"
#include "player/stage.h"
#include "player/words.h"

namespace benevix {
namespace {

using Texts = std::vector<std::string>;

void Want(bool holds, const std::string& expected, const std::string& got) {
  if (!holds) throw Mismatch{expected, got};
}

// The oldest one not checked must be as expected.
void WantNext(const std::optional<std::string>& next, const std::string& what,
              const std::string& expected, bool holds) {
  Want(next && holds, what + " " + Quoted(expected), next ? Quoted(*next) : "none");
}

// --- windows and values

struct Read {
  std::string text;
  bool isAddress = false;
};

Read ReadPath(Stage& stage, const std::string& path) {
  Program& program = stage.TheProgram();
  if (path.starts_with("value.")) {
    const auto value = ReadValue(program, path.substr(path.find('.') + 1));
    if (!value) throw CannotBeDone("there is no " + path);
    return {*value};
  }
  const Named named = Find(program, path);
  const auto text = stage.TheFrontEnd().Read(named.target, named.property);
  if (!text) throw CannotBeDone("there is no " + path);
  return {*text, named.property == "Address"};
}

void Expect(Stage& stage, const Texts& words) {
  const Read read = ReadPath(stage, words[0]);
  const bool same = read.isAddress ? SameAddress(read.text, words[1]) : read.text == words[1];
  Want(same, words[0] + " " + Quoted(words[1]), Quoted(read.text));
}

void Contains(Stage& stage, const Texts& words) {
  const std::string text = ReadPath(stage, words[0]).text;
  Want(text.find(words[1]) != std::string::npos, words[0] + " with " + Quoted(words[1]),
       Quoted(text));
}

// --- message boxes

Texts TextsOf(const ShownBox& box) {
  const char* icon = "none";
  if (box.icon == BoxIcon::Information) icon = "information";
  if (box.icon == BoxIcon::Question) icon = "question";
  if (box.icon == BoxIcon::Critical) icon = "critical";
  return {box.title, box.text, icon, box.buttons == BoxButtons::OK ? "OK" : "YesNo"};
}

std::string InOneLine(const Texts& texts) {
  std::string line;
  for (const std::string& text : texts) line += (line.empty() ? "" : " ") + Quoted(text);
  return line;
}

void Message(Stage& stage, const Texts& words) {
  const auto box = stage.TheWorld().boxes.shown.Next();
  Want(box.has_value(), "the message " + InOneLine(words), "none");
  const Texts shown = TextsOf(*box);
  const bool same = std::equal(
      words.begin(), words.end(), shown.begin(),
      [](const std::string& word, const std::string& text) { return word == "*" || word == text; });
  Want(same, "the message " + InOneLine(words), InOneLine(shown));
}

void NoMessage(Stage& stage, const Texts&) {
  Recorded<ShownBox>& shown = stage.TheWorld().boxes.shown;
  const auto box = shown.Next();
  shown.SkipAll();
  Want(!box, "no message", box ? InOneLine(TextsOf(*box)) : "");
}

// --- settings and files

void Stored(Stage& stage, const Texts& words) {
  const auto text = stage.TheWorld().settings.Text(words[0], words[1]);
  Want(text == words[2], "the setting " + words[1] + " " + Quoted(words[2]),
       text ? Quoted(*text) : "none");
}

void Absent(Stage& stage, const Texts& words) {
  const auto text = stage.TheWorld().settings.Text(words[0], words[1]);
  Want(!text, "no setting " + words[1], text ? Quoted(*text) : "");
}

bool IsFile(const std::string& file) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(PathOf(file), ignored);
}

void WantBytes(const std::string& file, const std::string& name, const std::string& expected) {
  std::ifstream stream(PathOf(file), std::ios::binary);
  const bool isThere = IsFile(file) && stream.is_open();
  const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
  Want(isThere && bytes == expected, "the file " + name + " with " + Quoted(expected),
       isThere ? Quoted(bytes) : "no file");
}

void Holds(Stage& stage, const Texts& words) {
  WantBytes(stage.TheWorld().ProgramFile(words[0]), words[0], words[1]);
}

void ShellHolds(Stage& stage, const Texts& words) {
  WantBytes(stage.TheWorld().ShellFile(words[0], words[1]), words[1], words[2]);
}

void Missing(Stage& stage, const Texts& words) {
  Want(!IsFile(stage.TheWorld().ProgramFile(words[0])), "no file " + words[0], "a file");
}

void Exists(Stage& stage, const Texts& words) {
  Want(IsFile(stage.TheWorld().ProgramFile(words[0])), "a file " + words[0], "none");
}

// --- requests, the page viewer, the printer, programs

// Without the server base address.
std::string OnSite(const World& world, const std::string& address) {
  const std::string& base = world.site.Address();
  return address.starts_with(base) ? address.substr(base.size()) : address;
}

std::optional<std::string> NextRequest(World& world) {
  const auto address = world.requests.Next();
  if (!address) return std::nullopt;
  return OnSite(world, *address);
}

void Request(Stage& stage, const Texts& words) {
  const auto request = NextRequest(stage.TheWorld());
  WantNext(request, "the request", words[0],
           words[0] == "*" || (request && SameAddress(*request, words[0])));
}

void NoRequest(Stage& stage, const Texts&) {
  const auto request = NextRequest(stage.TheWorld());
  stage.TheWorld().requests.SkipAll();
  Want(!request, "no request", request ? Quoted(*request) : "");
}

void Wire(Stage& stage, const Texts& words) {
  const auto target = stage.TheWorld().site.LastTarget();
  WantNext(target, "the target", words[0], target == words[0]);
}

void Navigated(Stage& stage, const Texts& words) {
  const auto& address = stage.Navigated();
  WantNext(address, "the page", words[0], address && SameAddress(*address, words[0]));
}

void Printed(Stage& stage, const Texts& words) {
  const auto line = stage.TheWorld().printer.lines.Next();
  WantNext(line, "the printed line", words[0], line == words[0]);
}

void NoPrint(Stage& stage, const Texts&) {
  Recorded<std::string>& lines = stage.TheWorld().printer.lines;
  const auto line = lines.Next();
  lines.SkipAll();
  Want(!line, "no printed line", line ? Quoted(*line) : "");
}

void Started(Stage& stage, const Texts& words) {
  Texts names;
  for (const std::string& file : stage.TheWorld().shell.started.All()) {
    names.push_back(PathOf(file).filename().string());
  }
  const bool started = std::find(names.begin(), names.end(), words[0]) != names.end();
  Want(started, "the start of " + Quoted(words[0]), names.empty() ? "none" : InOneLine(names));
}

}  // namespace

const std::vector<LineKind>& CheckingLines() {
  static const std::vector<LineKind> kinds = [] {
    std::vector<LineKind> lines = {
        {"expect PATH TEXT", Expect},
        {"contains PATH TEXT", Contains},
        {"message [TITLE] [TEXT] [ICON] [BUTTONS]", Message},
        {"no-message", NoMessage},
        {"stored ROOT NAME TEXT", Stored},
        {"absent ROOT NAME", Absent},
        {"holds PATH TEXT", Holds},
        {"missing PATH", Missing},
        {"exists PATH", Exists},
        {"shellholds FOLDER PATH TEXT", ShellHolds},
        {"request TEXT", Request},
        {"skip-requests", [](Stage& stage, const Texts&) { stage.TheWorld().requests.SkipAll(); }},
        {"no-request", NoRequest},
        {"wire TEXT", Wire},
        {"navigated ADDRESS", Navigated},
        {"printed LINE", Printed},
        {"no-print", NoPrint},
        {"started PROGRAM", Started},
        {"ended",
         [](Stage& stage, const Texts&) {
           Want(stage.HasEnded(), "the program to have ended", "one that has not");
         }},
        {"running",
         [](Stage& stage, const Texts&) {
           Want(stage.Runs(), "the program to be running", "one that is not");
         }},
        {"call ROUTINE ARG... = TEXT", CallRoutine},
    };
    for (LineKind& line : lines) line.checks = true;
    return lines;
  }();
  return kinds;
}

}  // namespace benevix
