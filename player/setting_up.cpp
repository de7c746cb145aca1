// The lines that set up the world.

#include <filesystem>
#include <fstream>

#include "core/codec.h"
#include "people/contact_information.h"
#include "player/program_runner.h"
#include "player/script.h"
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

void Version(ProgramRunner& runner, const Texts& words) {
  ProgramInfo& info = runner.TheWorld().info;
  info.major = WholeNumberIn(words[0]).value();
  info.minor = WholeNumberIn(words[1]).value();
  info.revision = WholeNumberIn(words[2]).value();
}

void Random(ProgramRunner& runner, const Texts& words) {
  for (const std::string& word : words) runner.TheWorld().random.Give(DoubleIn(word).value());
}

void Setting(ProgramRunner& runner, const Texts& words) {
  WorldSettings& settings = runner.TheWorld().settings;
  if (words.size() == 3) {
    settings.Put(words[0], words[1], words[2]);
  } else {
    settings.Remove(words[0], words[1]);
  }
}

// As the contact window would have saved them.
void Contact(ProgramRunner& runner, const Texts& words) {
  frmPersInfo window;
  for (std::size_t i = 0; i < words.size(); ++i) window.Text1[i].text = words[i];
  World& world = runner.TheWorld();
  world.settings.Put("user", "UsrInfo",
                     TextCodec(world.info.exeName).Scramble(JoinContact(window)));
}

void Write(ProgramRunner& runner, const Texts& words) {
  WriteFile(runner.TheWorld().ProgramFile(words[0]), words[1]);
}

void Remove(ProgramRunner& runner, const Texts& words) {
  std::error_code error;
  std::filesystem::remove(PathOf(runner.TheWorld().ProgramFile(words[0])), error);
  if (error) throw CannotBeDone(error.message());
}

void ShellFile(ProgramRunner& runner, const Texts& words) {
  WriteFile(runner.TheWorld().ShellFile(words[0], words[1]), words[2]);
}

template <LoopbackServer::Reply reply>
void SiteRefuses(ProgramRunner& runner, const Texts& words) {
  runner.TheWorld().site.Put(words[0], {reply, 0, ""});
}

void SiteStatus(ProgramRunner& runner, const Texts& words) {
  runner.TheWorld().site.Put(
      words[0], {LoopbackServer::Reply::Answer, WholeNumberIn(words[2]).value(), words[3]});
}

void SiteSlow(ProgramRunner& runner, const Texts& words) {
  ScriptedAnswer answer{.text = words[3]};
  answer.pause = DoubleIn(words[2]).value();
  runner.TheWorld().site.Put(words[0], answer);
}

void SiteRedirect(ProgramRunner& runner, const Texts& words) {
  ScriptedAnswer answer{.status = 302};
  answer.location = words[2];
  runner.TheWorld().site.Put(words[0], answer);
}

// A value of deployment.ini.
void SetDeployment(ProgramRunner& runner, const Texts& words) {
  Deployment& deployment = runner.TheWorld().info.deployment;
  if (words[0] == "ServerBase") {
    deployment.serverBase = words[1];
  } else if (words[0] == "PaymentBase") {
    deployment.paymentBase = words[1];
  } else if (words[0] == "PaymentIn") {
    deployment.paymentInBrowser = words[1] == "browser";
  } else if (words[0] == "UpdateKey") {
    deployment.updateKey = words[1];
  } else {
    throw CannotBeDone("no such value can be set");
  }
}

void SiteText(ProgramRunner& runner, const Texts& words) {
  runner.TheWorld().site.Put(words[0], {LoopbackServer::Reply::Answer, 200, words[1]});
}

}  // namespace

const std::vector<LineKind>& SettingUpLines() {
  static const std::vector<LineKind> kinds = {
      {"exe NAME", [](ProgramRunner& runner,
                      const Texts& words) { runner.TheWorld().info.exeName = words[0]; }},
      {"version NUMBER NUMBER NUMBER", Version},
      {"os NUMBER",
       [](ProgramRunner& runner, const Texts& words) {
         runner.TheWorld().info.platformId = WholeNumberIn(words[0]).value();
       }},
      {"time MOMENT",
       [](ProgramRunner& runner, const Texts& words) { runner.TheWorld().clock.Set(words[0]); }},
      {"random FRACTION FRACTION...", Random},
      {"setting ROOT NAME [TEXT]", Setting},
      {"deployment NAME TEXT", SetDeployment},
      {"installed PATH",
       [](ProgramRunner& runner, const Texts& words) {
         World& world = runner.TheWorld();
         world.info.installed = FilePath(words[0]);
       }},
      {"readonly machine", [](ProgramRunner& runner,
                              const Texts&) { runner.TheWorld().settings.MakeMachineReadonly(); }},
      {"contact NAME ADDRESS CITY STATE POSTAL COUNTRY EMAIL", Contact},
      {"file PATH", Write, true},
      {"bytes PATH TEXT", Write},
      {"remove PATH", Remove},
      {"shellfile FOLDER PATH TEXT", ShellFile},
      {"site down", [](ProgramRunner& runner, const Texts&) { runner.TheWorld().site.Down(); }},
      {"site up", [](ProgramRunner& runner, const Texts&) { runner.TheWorld().site.Up(); }},
      {"site TARGET drop", SiteRefuses<LoopbackServer::Reply::Close>},
      {"site TARGET silent", SiteRefuses<LoopbackServer::Reply::Silence>},
      {"site TARGET slow SECONDS TEXT", SiteSlow},
      {"site TARGET redirect ADDRESS", SiteRedirect},
      {"site TARGET TEXT", SiteText},
      {"site TARGET status NUMBER TEXT", SiteStatus},
      {"printer off",
       [](ProgramRunner& runner, const Texts&) { runner.TheWorld().printer.off = true; }},
  };
  return kinds;
}

}  // namespace benevix
