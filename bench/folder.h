#pragma once

#include <filesystem>
#include <string>

namespace benevix {

// A scratch folder, gone at the end. Settings and home of this process and of those it starts stand
// in it, so that nothing of the user's is touched.
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

// Makes a program folder with the given list, whose server refuses connections.
void MakeProgramFolder(const std::filesystem::path& folder, const std::filesystem::path& list,
                       const std::filesystem::path& resources);

}  // namespace benevix
