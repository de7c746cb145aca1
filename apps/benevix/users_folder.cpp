#include "benevix/users_folder.h"

#include <filesystem>

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/organization_database.h"
#include "platform/linux/linux_files.h"

namespace benevix {
namespace {

namespace fs = std::filesystem;

// A list that cannot be read or carries no version is older than any that does.
float VersionOf(const fs::path& list) {
  try {
    return ListFileVersion(LinuxFiles(), FilePath(list.string())).value_or(0);
  } catch (const RuntimeError&) {
    return 0;
  }
}

// A link between two of the files stays one, so that what is written through it stays here.
fs::path TargetOf(const fs::directory_entry& file) {
  if (!file.is_symlink()) return file.path();
  const fs::path target = fs::read_symlink(file);
  return target.has_parent_path() ? file.path() : target;
}

void Link(const fs::path& target, const fs::path& link) {
  if (fs::exists(link)) return;
  fs::remove(link);  // it leads nowhere
  std::error_code error;
  fs::create_symlink(target, link, error);
  // Another start may have been faster.
  if (error && error != std::errc::file_exists) throw fs::filesystem_error("", link, error);
}

}  // namespace

void FillUsersFolder(const std::string& installed, const std::string& folder) {
  const fs::path from = fs::path(installed) / "Resources", to = fs::path(folder) / "Resources";
  const fs::path list = "sharedb.dat";
  try {
    fs::create_directories(to);
    if (VersionOf(from / list) > VersionOf(to / list)) fs::remove(to / list);
    for (const auto& file : fs::directory_iterator(from)) {
      Link(TargetOf(file), to / file.path().filename());
    }
  } catch (const fs::filesystem_error& error) {
    throw RuntimeError(FromUtf8(error.path1().string() + ": " + error.code().message()));
  }
}

}  // namespace benevix
