#include "player/world.h"

#include <algorithm>
#include <filesystem>

#include "base/text.h"
#include "core/codec.h"

namespace benevix {
namespace {

// UTF-8 with the system's slashes.
std::string SystemPath(const std::string& path) {
  std::string system = ToUtf8(path);
  std::replace(system.begin(), system.end(), '\\', '/');
  return system;
}

}  // namespace

World::World() : settings(Inside("settings")), shell(Inside("programs"), Inside("desktop")) {
  for (const char* folder : {"program/Resources", "programs", "desktop"}) {
    std::filesystem::create_directories(PathOf(Inside(folder)));
  }
  info.folder = Inside("program");
  info.exeName = "Benevix";
  info.major = 1;
  info.deployment.serverBase = site.Address();
  info.deployment.paymentBase = site.Address() + "xclick/business=";
  info.deployment.mail = "app@benevix.example";
  info.deployment.translationName = "Parley";
  info.deployment.translationBase = site.Address() + "parley";
  info.deployment.copyright = "Copyright Quorl";
  info.deployment.product = "Benevix";

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
  replace("{folder}", FromUtf8(info.folder));
  return text;
}

std::string World::ProgramFile(const std::string& path) const {
  return (PathOf(info.folder) / PathOf(SystemPath(path))).string();
}

std::string World::ShellFile(const std::string& folder, const std::string& path) const {
  return (PathOf(Inside(folder)) / PathOf(SystemPath(path))).string();
}

bool SameAddress(std::string a, std::string b) {
  std::replace(a.begin(), a.end(), '\\', '/');
  std::replace(b.begin(), b.end(), '\\', '/');
  return a == b;
}

}  // namespace benevix
