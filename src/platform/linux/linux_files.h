#pragma once

#include "platform/files.h"

namespace benevix {

// Files through POSIX calls, as standard streams cannot flush to the disk. Errors read
// "<path>: <reason>". Symbolic links are followed, never replaced.
class LinuxFiles : public Files {
 public:
  [[nodiscard]] bool Exists(const FilePath& path) const override;
  [[nodiscard]] std::unique_ptr<FileReader> Open(const FilePath& path) const override;
  [[nodiscard]] std::string ReadAll(const FilePath& path) const override;
  void Replace(const FilePath& path, const std::string& bytes) override;
  // Locks the file against other programs that append to it.
  void Append(const FilePath& path, const std::string& bytes) override;
  void Remove(const FilePath& path) override;
  // Raises RuntimeError when both are the same file.
  void Copy(const FilePath& from, const FilePath& to) override;
};

}  // namespace benevix
