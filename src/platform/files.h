#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "base/file_path.h"

namespace benevix {

inline std::filesystem::path PathOf(const std::string& utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

// Which file it is and how it stands, as far as the clock of its file system tells: equal only when
// it was neither replaced nor written in between.
struct FileState {
  std::size_t size = 0;  // bytes
  std::uint64_t device = 0, number = 0;
  std::int64_t seconds = 0, nanoseconds = 0;  // of its last change
  friend bool operator==(const FileState&, const FileState&) = default;
};

class FileReader {
 public:
  virtual ~FileReader() = default;
  // When the file was opened.
  [[nodiscard]] virtual const FileState& State() const = 0;
  // Reads up to `size` bytes from there on and returns their number, 0 at the end of the file.
  // Several threads may read at once. Raises RuntimeError.
  virtual std::size_t Read(std::size_t offset, char* buffer, std::size_t size) const = 0;
};

// A lock held; released by the destructor, and when the process ends in whatever way.
class FolderLock {
 public:
  virtual ~FolderLock() = default;
};

// Who may read a new file.
enum class Readers { Owner, Everyone };

// Access to files by their paths. Failures raise RuntimeError with the file's name and the
// reason; what is no regular file (a folder, a pipe, a device) cannot be read or written.
class Files {
 public:
  virtual ~Files() = default;
  // False only when there is certainly no such file.
  [[nodiscard]] virtual bool Exists(const FilePath& path) const = 0;
  [[nodiscard]] virtual std::unique_ptr<FileReader> Open(const FilePath& path) const = 0;
  [[nodiscard]] virtual std::string ReadAll(const FilePath& path) const = 0;
  // Atomic: writes a temporary file in the same folder and renames it. A file that was there keeps
  // its permissions.
  virtual void Replace(const FilePath& path, const std::string& bytes,
                       Readers ofNew = Readers::Owner) = 0;
  // Appends in one write and flushes to the disk; creates a missing file. Ends a torn last line
  // first. The file is then readable by its owner alone. On failure it stays as it was.
  virtual void Append(const FilePath& path, const std::string& bytes) = 0;
  // Does nothing when the file does not exist.
  virtual void Remove(const FilePath& path) = 0;
  // Atomic: a file takes the place of `to`, in the same folder. Where `to` is a link to a name in
  // its own folder, the link stays and the file takes the place of that name. Returns the place.
  virtual FilePath Move(const FilePath& from, const FilePath& to) = 0;
  // Atomic: a symbolic link takes the place of `link`.
  virtual void Link(const FilePath& target, const FilePath& link) = 0;

  // Locks a folder against other programs that lock it; null when one of them still holds it after
  // `patience`. A file system without locks refuses nothing.
  [[nodiscard]] virtual std::unique_ptr<FolderLock> Lock(const FilePath& folder,
                                                         std::chrono::milliseconds patience) = 0;
  // A name beside `path` for a temporary file that belongs to this process alone.
  [[nodiscard]] virtual FilePath TemporaryName(const FilePath& path) const = 0;
  // Deletes the temporary files of processes that have ended. Never raises.
  virtual void RemoveLeftovers(const FilePath& folder) = 0;
};

}  // namespace benevix
