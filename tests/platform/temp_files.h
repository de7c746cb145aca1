#pragma once

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/resource.h>

namespace benevix {

// A new temporary folder, removed by the destructor.
class TempFolder {
 public:
  TempFolder() : path_((std::filesystem::temp_directory_path() / "benevix.XXXXXX").string()) {
    if (mkdtemp(path_.data()) == nullptr) std::abort();
    std::filesystem::permissions(path_, std::filesystem::perms(0755));
  }
  ~TempFolder() { std::filesystem::remove_all(path_); }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  [[nodiscard]] std::string operator/(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

// From now on, writing past `bytes` of any file fails, as on a full disk. Without an argument it
// works again.
inline void LimitFileSize(rlim_t bytes = RLIM_INFINITY) {
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{bytes, RLIM_INFINITY};
  setrlimit(RLIMIT_FSIZE, &limit);
}

inline void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace benevix
