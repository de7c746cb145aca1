#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>

namespace benevix {

inline std::filesystem::path PathOf(const std::string& utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

// Reads a file sequentially.
class FileReader {
 public:
  virtual ~FileReader() = default;
  // In bytes, when the file was opened.
  [[nodiscard]] virtual std::size_t Size() const = 0;
  // Reads up to `size` bytes and returns their number, 0 at the end of the file. Raises
  // RuntimeError.
  virtual std::size_t Read(char* buffer, std::size_t size) = 0;
};

// A lock held; released by the destructor, and when the process ends in whatever way.
class FolderLock {
 public:
  virtual ~FolderLock() = default;
};

// Who may read a new file.
enum class Readers { Owner, Everyone };

// Access to files by their paths (UTF-8). Failures raise RuntimeError with the file's name and the
// reason; what is no regular file (a folder, a pipe, a device) cannot be read or written.
class Files {
 public:
  virtual ~Files() = default;
  // False only when there is certainly no such file.
  [[nodiscard]] virtual bool Exists(const std::string& path) const = 0;
  [[nodiscard]] virtual std::unique_ptr<FileReader> Open(const std::string& path) const = 0;
  [[nodiscard]] virtual std::string ReadAll(const std::string& path) const = 0;
  // Atomic: writes a temporary file in the same folder and renames it. A file that was there keeps
  // its permissions.
  virtual void Replace(const std::string& path, const std::string& bytes,
                       Readers ofNew = Readers::Owner) = 0;
  // Appends in one write and flushes to the disk; creates a missing file. Ends a torn last line
  // first. The file is then readable by its owner alone. On failure it stays as it was.
  virtual void Append(const std::string& path, const std::string& bytes) = 0;
  // Does nothing when the file does not exist.
  virtual void Remove(const std::string& path) = 0;
  // Atomic: a file takes the place of `to`, in the same folder. Where `to` is a link to a name in
  // its own folder, the link stays and the file takes the place of that name. Returns the place.
  virtual std::string Move(const std::string& from, const std::string& to) = 0;
  // Atomic: a symbolic link takes the place of `link`.
  virtual void Link(const std::string& target, const std::string& link) = 0;

  // Locks a folder against other programs that lock it; null when one of them still holds it after
  // `patience`. A file system without locks refuses nothing.
  [[nodiscard]] virtual std::unique_ptr<FolderLock> Lock(const std::string& folder,
                                                         std::chrono::milliseconds patience) = 0;
  // Deletes the temporary files of processes that ended while they wrote. Never raises.
  virtual void RemoveLeftovers(const std::string& folder) = 0;
};

}  // namespace benevix
