#pragma once

#include <string>
#include <utility>

namespace benevix {

// A path of the file system, UTF-8. It is no text: texts are in the code page, which lacks letters
// that a folder's name may have, so that neither can be taken for the other.
class FilePath {
 public:
  FilePath() = default;
  explicit FilePath(std::string utf8) : utf8_(std::move(utf8)) {}
  // Not explicit, for names in the code, which are ASCII.
  FilePath(const char* name) : utf8_(name) {}

  [[nodiscard]] const std::string& Utf8() const { return utf8_; }
  [[nodiscard]] bool IsEmpty() const { return utf8_.empty(); }

  // A file of this folder.
  [[nodiscard]] FilePath operator/(const FilePath& name) const {
    return FilePath(utf8_ + "/" + name.utf8_);
  }

  friend bool operator==(const FilePath&, const FilePath&) = default;

 private:
  std::string utf8_;
};

}  // namespace benevix
