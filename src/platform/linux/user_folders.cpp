#include "platform/linux/user_folders.h"

#include <cstdlib>
#include <pwd.h>
#include <sstream>
#include <unistd.h>

namespace benevix {
namespace {

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
  const char* const value = std::getenv("XDG_DATA_DIRS");
  std::istringstream paths(value != nullptr && *value != '\0' ? value
                                                              : "/usr/local/share:/usr/share");
  std::vector<std::string> folders;
  for (std::string path; std::getline(paths, path, ':');) {
    if (path.starts_with('/')) folders.push_back(path);
  }
  return folders;
}

}  // namespace benevix
