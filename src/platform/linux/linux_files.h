#pragma once

#include "platform/files.h"

namespace benevix {

// Files through POSIX calls, as standard streams cannot flush to the disk. Errors read
// "<path>: <reason>". Symbolic links are followed, never replaced.
class LinuxFiles : public Files {
 public:
  [[nodiscard]] bool Exists(const std::string& path) const override;
  [[nodiscard]] std::unique_ptr<FileReader> Open(const std::string& path) const override;
  [[nodiscard]] std::string ReadAll(const std::string& path) const override;
  void Replace(const std::string& path, const std::string& bytes) override;
  // Locks the file against other programs that append to it.
  void Append(const std::string& path, const std::string& bytes) override;
  void Remove(const std::string& path) override;
  // Raises RuntimeError when both are the same file.
  void Copy(const std::string& from, const std::string& to) override;
};

}  // namespace benevix
