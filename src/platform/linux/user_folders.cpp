#include "platform/linux/user_folders.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <sstream>
#include <unistd.h>

namespace benevix {
namespace {

constexpr auto kProgram = "/benevix/";

std::string AbsoluteVariable(const char* name) {
  const char* const value = std::getenv(name);
  std::string path = value != nullptr && value[0] == '/' ? value : "";
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

std::string FolderOr(const char* variable, const char* belowHome) {
  const std::string path = AbsoluteVariable(variable);
  return path.empty() ? HomeFolder() + belowHome : path;
}

std::vector<std::string> AbsolutePaths(const std::string& list) {
  std::vector<std::string> paths;
  std::istringstream rest(list);
  for (std::string path; std::getline(rest, path, ':');) {
    if (path.starts_with('/')) paths.push_back(path);
  }
  return paths;
}

std::vector<std::string> FoldersOr(const char* variable, const char* standard) {
  const char* const value = std::getenv(variable);
  const std::vector<std::string> folders = AbsolutePaths(value != nullptr ? value : "");
  return folders.empty() ? AbsolutePaths(standard) : folders;
}

}  // namespace

std::string HomeFolder() {
  const std::string home = AbsoluteVariable("HOME");
  if (!home.empty()) return home;
  const passwd* const user = getpwuid(getuid());
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "/";
}

std::string DataFolder() {
  return FolderOr("XDG_DATA_HOME", "/.local/share");
}
std::string ConfigFolder() {
  return FolderOr("XDG_CONFIG_HOME", "/.config");
}

std::vector<std::string> SystemDataFolders() {
  return FoldersOr("XDG_DATA_DIRS", "/usr/local/share:/usr/share");
}

std::string UserConfigFile(const std::string& name) {
  return ConfigFolder() + kProgram + name;
}

std::string MachineConfigFile(const std::string& name) {
  const std::vector<std::string> folders = FoldersOr("XDG_CONFIG_DIRS", "/etc/xdg");
  const auto has = [&name](const std::string& folder) {
    std::error_code ignored;
    return std::filesystem::exists(folder + kProgram + name, ignored);
  };
  const auto found = std::find_if(folders.begin(), folders.end(), has);
  return (found == folders.end() ? folders.front() : *found) + kProgram + name;
}

}  // namespace benevix
