#pragma once

#include "platform/files.h"

namespace benevix {

// Files through POSIX calls, as standard streams cannot flush to the disk. Errors read
// "<path>: <reason>". Symbolic links are followed, never replaced, except by Link and Move.
class LinuxFiles : public Files {
 public:
  [[nodiscard]] bool Exists(const FilePath& path) const override;
  [[nodiscard]] std::unique_ptr<FileReader> Open(const FilePath& path) const override;
  [[nodiscard]] std::string ReadAll(const FilePath& path) const override;
  void Replace(const FilePath& path, const std::string& bytes,
               Readers ofNew = Readers::Owner) override;
  // Locks the file against other programs that append to it, and fails when one of them does not
  // give it back.
  void Append(const FilePath& path, const std::string& bytes) override;
  void Remove(const FilePath& path) override;
  FilePath Move(const FilePath& from, const FilePath& to) override;
  void Link(const FilePath& target, const FilePath& link) override;
  [[nodiscard]] std::unique_ptr<FolderLock> Lock(const FilePath& folder,
                                                 std::chrono::milliseconds patience) override;
  [[nodiscard]] FilePath TemporaryName(const FilePath& path) const override;
  void RemoveLeftovers(const FilePath& folder) override;
};

}  // namespace benevix
