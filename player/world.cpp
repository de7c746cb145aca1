#include "player/world.h"

#include <algorithm>
#include <filesystem>

#include "base/text.h"
#include "core/codec.h"
#include "player/words.h"

namespace benevix {
namespace {

std::string WithSlashes(std::string text) {
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

}  // namespace

World::World()
    : settings(Inside("settings")),
      shell(FilePath(Inside("programs")), FilePath(Inside("desktop"))) {
  for (const char* folder : {"program/Resources", "programs", "desktop", "runtime"}) {
    std::filesystem::create_directories(PathOf(Inside(folder)));
  }
  info.folder = FilePath(Inside("program"));
  info.exeName = "Benevix";
  info.major = 1;
  info.deployment = DeploymentOn(site.Address());

  std::string countries;
  TextCodec(info.exeName)
      .Codec("Canada,U.S.A.,", countries, codec_mode::kCountries, codec_direction::kScramble);
  files.Replace(info.Resource("wlist.res"), countries);
}

std::string World::Fill(std::string text) const {
  const auto replace = [&](const std::string& name, const std::string& value) {
    for (std::size_t at = 0; (at = text.find(name, at)) != std::string::npos; at += value.size()) {
      text.replace(at, name.size(), value);
    }
  };
  replace("{site}", info.deployment.serverBase);
  replace("{pay}", info.deployment.paymentBase);
  replace("{folder}", ScriptText(info.folder.Utf8()));
  return text;
}

std::string World::ProgramFile(const std::string& path) const {
  return (PathOf(info.folder.Utf8()) / PathOf(WithSlashes(ToUtf8(path)))).string();
}

std::string World::ShellFile(const std::string& folder, const std::string& path) const {
  return (PathOf(Inside(folder)) / PathOf(WithSlashes(ToUtf8(path)))).string();
}

bool SameAddress(const std::string& a, const std::string& b) {
  return WithSlashes(a) == WithSlashes(b);
}

Deployment DeploymentOn(const std::string& site) {
  return {.serverBase = site,
          .paymentBase = site + "xclick/business=",
          .mail = "app@benevix.example",
          .translationName = "Parley",
          .translationBase = site + "parley",
          .copyright = "Copyright Quorl",
          .product = "Benevix"};
}

}  // namespace benevix
