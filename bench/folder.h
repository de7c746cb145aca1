#pragma once

#include <filesystem>
#include <string>

namespace benevix {

// A temporary folder, removed by the destructor. It becomes the home and settings folder of this
// process and its children, so that the user's own stay untouched.
class ScratchFolder {
 public:
  ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder();

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// Creates a program folder with the given list and a server address that refuses connections.
void MakeProgramFolder(const std::filesystem::path& folder, const std::filesystem::path& list,
                       const std::filesystem::path& resources);

}  // namespace benevix
