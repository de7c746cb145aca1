#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>

#include "base/file_path.h"

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

// Access to files by their paths. Failures raise RuntimeError with the file's name and the
// reason.
class Files {
 public:
  virtual ~Files() = default;
  [[nodiscard]] virtual bool Exists(const FilePath& path) const = 0;
  [[nodiscard]] virtual std::unique_ptr<FileReader> Open(const FilePath& path) const = 0;
  [[nodiscard]] virtual std::string ReadAll(const FilePath& path) const = 0;
  // Atomic: writes a temporary file in the same folder and renames it.
  virtual void Replace(const FilePath& path, const std::string& bytes) = 0;
  // Appends in one write and flushes to the disk; creates a missing file. On failure the file stays
  // as it was.
  virtual void Append(const FilePath& path, const std::string& bytes) = 0;
  // Does nothing when the file does not exist.
  virtual void Remove(const FilePath& path) = 0;
  // Overwrites `to`.
  virtual void Copy(const FilePath& from, const FilePath& to) = 0;
};

}  // namespace benevix
