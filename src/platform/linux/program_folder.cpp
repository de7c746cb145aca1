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

}  // namespace

std::string ExecutablePath() {
  std::error_code error;
  const fs::path path = fs::read_symlink("/proc/self/exe", error);
  if (error) throw RuntimeError("/proc/self/exe: " + error.message());
  return path.string();
}

std::string InstalledFolder(const std::string& executable) {
  const fs::path own = fs::path(executable).parent_path();
  std::error_code ignored;
  if (fs::exists(own / "Resources", ignored)) return own.string();
  return (own / BENEVIX_DATA_FOLDER).lexically_normal().string();
}

std::string DeploymentFile(const std::string& executable) {
  const std::string name = "deployment.ini";
  const std::string installed = InstalledFolder(executable);
  const std::string machines = MachineConfigFile(name);
  const bool standsAlone = fs::path(executable).parent_path() == installed;
  std::error_code ignored;
  return standsAlone || !fs::exists(machines, ignored) ? installed + '/' + name : machines;
}

std::string ProgramFolder(const std::string& executable) {
  const fs::path own = fs::path(executable).parent_path();
  if (IsWritable(own) && IsWritable(own / "Resources")) return own.string();
  return DataFolder() + "/benevix";
}

}  // namespace benevix
