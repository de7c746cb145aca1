#include "platform/linux/linux_shell.h"

#include <filesystem>
#include <spawn.h>
#include <sstream>
#include <string_view>
#include <system_error>
#include <unistd.h>

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/user_folders.h"

namespace benevix {
namespace {

namespace fs = std::filesystem;

// Empty when the file cannot be read.
std::string TextOf(const std::string& file) {
  try {
    return LinuxFiles().ReadAll(FilePath(file));
  } catch (const RuntimeError&) {
    return {};
  }
}

// The folder in the line NAME="path" of user-dirs.dirs: backslashes escape, only a leading $HOME is
// expanded (https://www.freedesktop.org/wiki/Software/xdg-user-dirs/). Empty when it is missing or
// not absolute.
std::string UserFolder(std::string_view name) {
  const std::string prefix = std::string(name) + "=\"";
  constexpr std::string_view home = "$HOME";
  std::string path;
  std::istringstream file(TextOf(ConfigFolder() + "/user-dirs.dirs"));
  for (std::string line; std::getline(file, line);) {
    line.erase(0, line.find_first_not_of(" \t"));
    if (!line.starts_with(prefix)) continue;
    std::size_t i = prefix.size();
    path.clear();
    if (std::string_view(line).substr(i).starts_with(home)) {
      path = HomeFolder();
      i += home.size();
    }
    for (; i < line.size() && line[i] != '"'; ++i) {
      if (line[i] == '\\' && i + 1 < line.size()) ++i;
      path += line[i];
    }
  }
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path.starts_with('/') ? path : "";
}

// A file of the user's data folder or, when it is missing, the same file of a system data folder.
// There it may be one folder higher: packages have no folder benevix in "applications".
fs::path DataFile(const fs::path& file) {
  std::error_code ignored;
  const fs::path name = file.lexically_relative(DataFolder());
  if (fs::exists(file, ignored) || name.empty() || *name.begin() == "..") return file;
  for (const fs::path folder : SystemDataFolders()) {
    if (fs::exists(folder / name, ignored)) return folder / name;
    const fs::path oneHigher = folder / name.parent_path().parent_path() / name.filename();
    if (fs::exists(oneHigher, ignored)) return oneHigher;
  }
  return file;
}

}  // namespace

FilePath LinuxShell::SpecialFolder(int folderId) const {
  if (folderId == kProgramsFolder) return FilePath(DataFolder() + "/applications");
  if (folderId != kDesktopFolder) return {};
  const std::string desktop = UserFolder("XDG_DESKTOP_DIR");
  return FilePath(desktop.empty() ? HomeFolder() + "/Desktop" : desktop);
}

void LinuxShell::CopyIntoFolder(const FilePath& file, const FilePath& folder) {
  std::error_code ignored;
  const fs::path from = DataFile(file.Utf8());
  const fs::path to = folder.Utf8() / from.filename();
  fs::copy_file(from, to, fs::copy_options::overwrite_existing, ignored);
  // Desktops start an entry in the desktop folder only when it is executable.
  fs::permissions(to, fs::perms::owner_exec, fs::perm_options::add, ignored);
}

void LinuxShell::StartProgram(const FilePath& program) {
  std::string file = program.Utf8();
  std::error_code error;
  constexpr auto executable =
      fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
  fs::permissions(file, executable, fs::perm_options::add, error);
  if (error) throw RuntimeError(FromUtf8(file + ": " + error.message()));

  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
  char* const arguments[] = {file.data(), nullptr};
  pid_t process = 0;
  const int code = posix_spawn(&process, file.c_str(), nullptr, &attributes, arguments, environ);
  posix_spawnattr_destroy(&attributes);
  if (code != 0) throw RuntimeError(FromUtf8(file + ": " + std::generic_category().message(code)));
}

}  // namespace benevix
