#include "platform/linux/program_folder.h"

#include <filesystem>
#include <unistd.h>

#include "base/runtime_error.h"
#include "platform/linux/user_folders.h"

namespace benevix {
namespace {

namespace fs = std::filesystem;

bool IsWritable(const fs::path& folder) {
  return access(folder.c_str(), R_OK | W_OK | X_OK) == 0;
}

// A link between two of the files stays one. Copied beside and renamed, so that a start that was
// cut short begins anew the next time. The program adds to these files, so they are the user's to
// write even when the installed ones are not.
void SeedResources(const fs::path& installed, const fs::path& resources) {
  if (fs::exists(resources)) return;
  const fs::path unfinished = resources.string() + "." + std::to_string(getpid());
  fs::remove_all(unfinished);
  fs::create_directories(unfinished);
  if (fs::exists(installed)) {
    fs::copy(fs::canonical(installed), unfinished,
             fs::copy_options::recursive | fs::copy_options::copy_symlinks);
  }
  for (const auto& entry : fs::recursive_directory_iterator(unfinished)) {
    if (!entry.is_symlink()) fs::permissions(entry, fs::perms::owner_write, fs::perm_options::add);
  }
  std::error_code takenMeanwhile;
  fs::rename(unfinished, resources, takenMeanwhile);
  if (!takenMeanwhile) return;
  fs::remove_all(unfinished);
  if (!fs::exists(resources)) throw fs::filesystem_error("", resources, takenMeanwhile);
}

}  // namespace

std::string ExecutablePath() {
  std::error_code error;
  const fs::path path = fs::read_symlink("/proc/self/exe", error);
  if (error) throw RuntimeError("/proc/self/exe: " + error.message());
  return path.string();
}

std::string ProgramFolder(const std::string& executable) {
  const fs::path own = fs::path(executable).parent_path();
  const fs::path installed = own / "Resources";
  if (IsWritable(own) && (!fs::exists(installed) || IsWritable(installed))) return own.string();
  const fs::path folder = fs::path(DataFolder()) / "benevix";
  try {
    SeedResources(installed, folder / "Resources");
  } catch (const fs::filesystem_error& error) {
    const fs::path& path = error.path2().empty() ? error.path1() : error.path2();
    throw RuntimeError(path.string() + ": " + error.code().message());
  }
  return folder.string();
}

}  // namespace benevix
