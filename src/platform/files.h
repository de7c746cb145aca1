#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>

namespace benevix {

inline std::filesystem::path PathOf(const std::string& utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

// A file that is read piece by piece, from its beginning.
class FileReader {
 public:
  virtual ~FileReader() = default;
  // The file's bytes when it was opened.
  [[nodiscard]] virtual std::size_t Size() const = 0;
  // Reads at most `size` bytes to `place` and gives their number, 0 at the end. Raises
  // RuntimeError.
  virtual std::size_t Read(char* place, std::size_t size) = 0;
};

// The files of the program folder. Paths are UTF-8. Failures raise RuntimeError with the file's
// name and the reason.
class Files {
 public:
  virtual ~Files() = default;
  [[nodiscard]] virtual bool Exists(const std::string& path) const = 0;
  [[nodiscard]] virtual std::unique_ptr<FileReader> Open(const std::string& path) const = 0;
  [[nodiscard]] virtual std::string ReadAll(const std::string& path) const = 0;
  // Written beside and renamed: at any instant the old or the new file stands, never half.
  virtual void Replace(const std::string& path, const std::string& bytes) = 0;
  // Appended in one write and flushed to the disk; the file is made when it is not there. When it
  // fails the file is as it was.
  virtual void Append(const std::string& path, const std::string& bytes) = 0;
  // A missing file is no error.
  virtual void Remove(const std::string& path) = 0;
  virtual void Copy(const std::string& from, const std::string& to) = 0;
};

}  // namespace benevix
