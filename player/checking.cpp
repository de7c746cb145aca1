// The lines that check what the user and the world around the program see.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "base/web_address.h"
#include "player/paths.h"
#include "player/program_runner.h"
#include "player/properties.h"
#include "player/script.h"
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

// None must be left unchecked; afterwards all are checked.
template <class T, class F>
void WantNone(Recorded<T>& recorded, const std::string& what, F&& text) {
  const auto next = recorded.Next();
  recorded.SkipAll();
  Want(!next, "no " + what, next ? text(*next) : "");
}

// --- windows and values

struct Read {
  std::string text;
  bool isAddress = false;
};

Read ReadPath(ProgramRunner& runner, const std::string& path) {
  Program& program = runner.TheProgram();
  if (path.starts_with("value.")) {
    const auto value = ReadValue(program, path.substr(path.find('.') + 1));
    if (!value) throw CannotBeDone("there is no " + path);
    return {*value};
  }
  const Named named = Find(program, path);
  const auto text = runner.TheFrontEnd().Read(named.target, named.property);
  if (!text) throw CannotBeDone("there is no " + path);
  return {*text, named.property == "Address"};
}

void Expect(ProgramRunner& runner, const Texts& words) {
  const Read read = ReadPath(runner, words[0]);
  const bool same = read.isAddress ? SameAddress(read.text, words[1]) : read.text == words[1];
  Want(same, words[0] + " " + Quoted(words[1]), Quoted(read.text));
}

void Contains(ProgramRunner& runner, const Texts& words) {
  const std::string text = ReadPath(runner, words[0]).text;
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

void Message(ProgramRunner& runner, const Texts& words) {
  const auto box = runner.TheWorld().boxes.shown.Next();
  Want(box.has_value(), "the message " + InOneLine(words), "none");
  const Texts shown = TextsOf(*box);
  const bool same = std::equal(
      words.begin(), words.end(), shown.begin(),
      [](const std::string& word, const std::string& text) { return word == "*" || word == text; });
  Want(same, "the message " + InOneLine(words), InOneLine(shown));
}

void NoMessage(ProgramRunner& runner, const Texts&) {
  WantNone(runner.TheWorld().boxes.shown, "message",
           [](const ShownBox& box) { return InOneLine(TextsOf(box)); });
}

// --- settings and files

void Stored(ProgramRunner& runner, const Texts& words) {
  const auto text = runner.TheWorld().settings.Text(words[0], words[1]);
  Want(text == words[2], "the setting " + words[1] + " " + Quoted(words[2]),
       text ? Quoted(*text) : "none");
}

void Absent(ProgramRunner& runner, const Texts& words) {
  const auto text = runner.TheWorld().settings.Text(words[0], words[1]);
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

void Holds(ProgramRunner& runner, const Texts& words) {
  WantBytes(runner.TheWorld().ProgramFile(words[0]), words[0], words[1]);
}

void ShellHolds(ProgramRunner& runner, const Texts& words) {
  WantBytes(runner.TheWorld().ShellFile(words[0], words[1]), words[1], words[2]);
}

void Missing(ProgramRunner& runner, const Texts& words) {
  Want(!IsFile(runner.TheWorld().ProgramFile(words[0])), "no file " + words[0], "a file");
}

void Exists(ProgramRunner& runner, const Texts& words) {
  Want(IsFile(runner.TheWorld().ProgramFile(words[0])), "a file " + words[0], "none");
}

// --- requests, the page viewer, the printer, programs

// Without the server base address.
std::string OnSite(const World& world, const std::string& address) {
  const std::string& base = world.site.Address();
  return address.starts_with(base) ? address.substr(base.size()) : address;
}

void Request(ProgramRunner& runner, const Texts& words) {
  auto request = runner.TheWorld().requests.Next();
  if (request) request = OnSite(runner.TheWorld(), *request);
  WantNext(request, "the request", words[0],
           words[0] == "*" || (request && SameAddress(*request, words[0])));
}

void NoRequest(ProgramRunner& runner, const Texts&) {
  World& world = runner.TheWorld();
  WantNone(world.requests, "request",
           [&](const std::string& address) { return Quoted(OnSite(world, address)); });
}

void Wire(ProgramRunner& runner, const Texts& words) {
  const auto target = runner.TheWorld().site.LastTarget();
  WantNext(target, "the target", words[0], target == words[0]);
}

void Navigated(ProgramRunner& runner, const Texts& words) {
  const auto& address = runner.Navigated();
  WantNext(address, "the page", words[0], address && SameAddress(*address, words[0]));
}

void Printed(ProgramRunner& runner, const Texts& words) {
  const auto line = runner.TheWorld().printer.lines.Next();
  WantNext(line, "the printed line", words[0], line == words[0]);
}

void NoPrint(ProgramRunner& runner, const Texts&) {
  WantNone(runner.TheWorld().printer.lines, "printed line", Quoted);
}

void Started(ProgramRunner& runner, const Texts& words) {
  Texts names;
  for (const std::string& file : runner.TheWorld().shell.started.All()) {
    names.push_back(IsWebAddress(file) ? file : PathOf(file).filename().string());
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
        {"skip-requests",
         [](ProgramRunner& runner, const Texts&) { runner.TheWorld().requests.SkipAll(); }},
        {"no-request", NoRequest},
        {"wire TEXT", Wire},
        {"navigated ADDRESS", Navigated},
        {"printed LINE", Printed},
        {"no-print", NoPrint},
        {"started PROGRAM", Started},
        {"ended",
         [](ProgramRunner& runner, const Texts&) {
           Want(runner.HasEnded(), "the program to have ended", "one that has not");
         }},
        {"running",
         [](ProgramRunner& runner, const Texts&) {
           Want(runner.IsRunning(), "the program to be running", "one that is not");
         }},
        {"call ROUTINE ARG... = TEXT", CallRoutine},
    };
    for (LineKind& line : lines) line.checks = true;
    return lines;
  }();
  return kinds;
}

}  // namespace benevix
