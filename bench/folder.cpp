#include "folder.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace benevix {
namespace {

namespace fs = std::filesystem;

// Port 9 (discard) is closed on practically every machine.
constexpr auto kDeployment = R"(ServerBase=http://127.0.0.1:9/
PaymentBase=http://127.0.0.1:9/xclick/business=
Mail=app@benevix.example
TranslationName=Parley
TranslationBase=http://127.0.0.1:9/parley
Copyright=Copyright Quorl
Product=Benevix
)";

}  // namespace

ScratchFolder::ScratchFolder() {
  std::string name = (fs::temp_directory_path() / "benevix-bench-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error(name + " cannot be made");
  path_ = name;
  setenv("HOME", name.c_str(), 1);
  setenv("XDG_CONFIG_HOME", (name + "/settings").c_str(), 1);
  setenv("XDG_CONFIG_DIRS", (name + "/machine").c_str(), 1);
  setenv("XDG_RUNTIME_DIR", name.c_str(), 1);
  setenv("XDG_DATA_HOME", (name + "/data").c_str(), 1);
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

void MakeProgramFolder(const fs::path& folder, const fs::path& list, const fs::path& resources) {
  fs::create_directories(folder / "Resources");
  fs::copy_file(resources / "wlist.res", folder / "Resources" / "wlist.res");
  fs::create_symlink(fs::absolute(list), folder / "Resources" / "sharedb.dat");
  std::ofstream(folder / "deployment.ini") << kDeployment;
}

}  // namespace benevix
