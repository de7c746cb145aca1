// The lines that set up the world.

#include <filesystem>
#include <fstream>

#include "core/codec.h"
#include "people/contact_information.h"
#include "player/script.h"
#include "player/stage.h"
#include "player/words.h"

namespace benevix {
namespace {

using Texts = std::vector<std::string>;

void WriteFile(const std::string& file, const std::string& bytes) {
  const std::filesystem::path path = PathOf(file);
  std::error_code ignored;
  std::filesystem::create_directories(path.parent_path(), ignored);
  std::ofstream stream(path, std::ios::binary);
  stream << bytes;
  stream.close();
  if (!stream) throw CannotBeDone("the file cannot be written");
}

void Version(Stage& stage, const Texts& words) {
  ProgramInfo& info = stage.TheWorld().info;
  info.major = WholeNumberIn(words[0]).value();
  info.minor = WholeNumberIn(words[1]).value();
  info.revision = WholeNumberIn(words[2]).value();
}

void Random(Stage& stage, const Texts& words) {
  for (const std::string& word : words) stage.TheWorld().random.Give(DoubleIn(word).value());
}

void Setting(Stage& stage, const Texts& words) {
  WorldSettings& settings = stage.TheWorld().settings;
  if (words.size() == 3) {
    settings.Put(words[0], words[1], words[2]);
  } else {
    settings.Remove(words[0], words[1]);
  }
}

// As the contact window would have saved them.
void Contact(Stage& stage, const Texts& words) {
  frmPersInfo window;
  for (std::size_t i = 0; i < words.size(); ++i) window.Text1[i].text = words[i];
  World& world = stage.TheWorld();
  world.settings.Put("user", "UsrInfo",
                     TextCodec(world.info.exeName).Scramble(JoinContact(window)));
}

void Write(Stage& stage, const Texts& words) {
  WriteFile(stage.TheWorld().ProgramFile(words[0]), words[1]);
}

void Remove(Stage& stage, const Texts& words) {
  std::error_code error;
  std::filesystem::remove(PathOf(stage.TheWorld().ProgramFile(words[0])), error);
  if (error) throw CannotBeDone(error.message());
}

void ShellFile(Stage& stage, const Texts& words) {
  WriteFile(stage.TheWorld().ShellFile(words[0], words[1]), words[2]);
}

template <LoopbackServer::Reply reply>
void SiteRefuses(Stage& stage, const Texts& words) {
  stage.TheWorld().site.Put(words[0], {reply, 0, ""});
}

void SiteStatus(Stage& stage, const Texts& words) {
  stage.TheWorld().site.Put(
      words[0], {LoopbackServer::Reply::Answer, WholeNumberIn(words[2]).value(), words[3]});
}

void SiteText(Stage& stage, const Texts& words) {
  stage.TheWorld().site.Put(words[0], {LoopbackServer::Reply::Answer, 200, words[1]});
}

}  // namespace

const std::vector<LineKind>& SettingUpLines() {
  static const std::vector<LineKind> kinds = {
      {"exe NAME",
       [](Stage& stage, const Texts& words) { stage.TheWorld().info.exeName = words[0]; }},
      {"version NUMBER NUMBER NUMBER", Version},
      {"os NUMBER",
       [](Stage& stage, const Texts& words) {
         stage.TheWorld().info.platformId = WholeNumberIn(words[0]).value();
       }},
      {"time MOMENT",
       [](Stage& stage, const Texts& words) { stage.TheWorld().clock.Set(words[0]); }},
      {"random FRACTION FRACTION...", Random},
      {"setting ROOT NAME [TEXT]", Setting},
      {"readonly machine",
       [](Stage& stage, const Texts&) { stage.TheWorld().settings.MakeMachineReadonly(); }},
      {"contact NAME ADDRESS CITY STATE POSTAL COUNTRY EMAIL", Contact},
      {"file PATH", Write, true},
      {"bytes PATH TEXT", Write},
      {"remove PATH", Remove},
      {"shellfile FOLDER PATH TEXT", ShellFile},
      {"site down", [](Stage& stage, const Texts&) { stage.TheWorld().site.Down(); }},
      {"site up", [](Stage& stage, const Texts&) { stage.TheWorld().site.Up(); }},
      {"site TARGET drop", SiteRefuses<LoopbackServer::Reply::Close>},
      {"site TARGET silent", SiteRefuses<LoopbackServer::Reply::Silence>},
      {"site TARGET TEXT", SiteText},
      {"site TARGET status NUMBER TEXT", SiteStatus},
      {"printer off", [](Stage& stage, const Texts&) { stage.TheWorld().printer.off = true; }},
  };
  return kinds;
}

}  // namespace benevix
