#include "benevix/users_folder.h"

#include <filesystem>
#include <limits>
#include <optional>

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/organization_database.h"
#include "platform/linux/linux_files.h"

namespace benevix {
namespace {

namespace fs = std::filesystem;

FilePath PathOf(const fs::path& path) {
  return FilePath(path.string());
}

// Nothing for a list that cannot be read or has an absurd version.
std::optional<float> VersionOf(const fs::path& list) {
  try {
    const float version = ListFileVersion(LinuxFiles(), PathOf(list)).value_or(0);
    return IsListVersion(version) ? std::optional(version) : std::nullopt;
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

// A link between two of the files stays one, so that what is written through it stays here.
fs::path TargetOf(const fs::directory_entry& file) {
  if (!file.is_symlink()) return file.path();
  const fs::path target = fs::read_symlink(file);
  return target.has_parent_path() ? file.path() : target;
}

// A list that the program installs from the server at this moment is newer anyway. One that cannot
// be read stays: the program replaces it and says so.
void ReplaceOlderList(const fs::path& installed, const fs::path& own) {
  LinuxFiles files;
  const auto lock = files.Lock(PathOf(own.parent_path()), std::chrono::milliseconds(0));
  if (lock && VersionOf(installed) > VersionOf(own).value_or(std::numeric_limits<float>::max())) {
    files.Link(PathOf(installed), PathOf(own));
  }
}

}  // namespace

void FillUsersFolder(const std::string& installed, const std::string& folder) {
  const fs::path from = fs::path(installed) / "Resources", to = fs::path(folder) / "Resources";
  const fs::path list = "sharedb.dat";
  try {
    fs::create_directories(to);
    for (const auto& file : fs::directory_iterator(from)) {
      const fs::path link = to / file.path().filename();
      if (!fs::exists(link)) LinuxFiles().Link(PathOf(TargetOf(file)), PathOf(link));
    }
    ReplaceOlderList(from / list, to / list);
  } catch (const fs::filesystem_error& error) {
    throw RuntimeError(FromUtf8(error.path1().string() + ": " + error.code().message()));
  }
}

}  // namespace benevix
