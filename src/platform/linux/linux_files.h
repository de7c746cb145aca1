#pragma once

#include "platform/files.h"

namespace benevix {

// Files through POSIX calls, as standard streams cannot flush to the disk. Errors read
// "<path>: <reason>". Symbolic links are followed, never replaced, except by Link and Move.
class LinuxFiles : public Files {
 public:
  [[nodiscard]] bool Exists(const std::string& path) const override;
  [[nodiscard]] std::unique_ptr<FileReader> Open(const std::string& path) const override;
  [[nodiscard]] std::string ReadAll(const std::string& path) const override;
  void Replace(const std::string& path, const std::string& bytes,
               Readers ofNew = Readers::Owner) override;
  // Locks the file against other programs that append to it, and fails when one of them does not
  // give it back.
  void Append(const std::string& path, const std::string& bytes) override;
  void Remove(const std::string& path) override;
  std::string Move(const std::string& from, const std::string& to) override;
  void Link(const std::string& target, const std::string& link) override;
  [[nodiscard]] std::unique_ptr<FolderLock> Lock(const std::string& folder,
                                                 std::chrono::milliseconds patience) override;
  void RemoveLeftovers(const std::string& folder) override;
};

}  // namespace benevix
