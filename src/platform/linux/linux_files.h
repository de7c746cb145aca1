#pragma once

#include "platform/files.h"

namespace benevix {

// Files through the system's own calls, which alone can flush to the disk. Errors name the file
// and the reason: "<path>: <reason>". A symbolic link is followed, never replaced.
class LinuxFiles : public Files {
 public:
  [[nodiscard]] bool Exists(const std::string& path) const override;
  [[nodiscard]] std::unique_ptr<FileReader> Open(const std::string& path) const override;
  [[nodiscard]] std::string ReadAll(const std::string& path) const override;
  void Replace(const std::string& path, const std::string& bytes) override;
  // Programs that append to one file at the same time wait for each other.
  void Append(const std::string& path, const std::string& bytes) override;
  void Remove(const std::string& path) override;
  // Writes over what stands at `to`.
  void Copy(const std::string& from, const std::string& to) override;
};

}  // namespace benevix
