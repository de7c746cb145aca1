#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace benevix {

// The lines of a file that may be too large to be held whole. A line ends at LF, which does not
// belong to it, the last one at the end of the file.
class LineReader {
 public:
  explicit LineReader(std::unique_ptr<FileReader> file) : file_(std::move(file)) {}

  // Good until the next call; nothing at the end. Raises RuntimeError when the file cannot be read.
  std::optional<std::string_view> Next() {
    for (std::size_t looked = begin_;;) {
      const auto end = bytes_.find('\n', looked);
      if (end != std::string::npos) return Take(end, 1);
      looked = bytes_.size() - begin_;
      if (!ReadOn()) break;
    }
    if (begin_ == bytes_.size()) return std::nullopt;
    return Take(bytes_.size(), 0);
  }

 private:
  // The text up to `end`; what follows its separator comes next.
  std::string_view Take(std::size_t end, std::size_t separator) {
    const std::size_t begin = begin_;
    begin_ = end + separator;
    return std::string_view(bytes_).substr(begin, end - begin);
  }

  // Puts the next piece behind the line that has begun, which moves to the front.
  bool ReadOn() {
    constexpr std::size_t piece = std::size_t{64} << 10;
    bytes_.erase(0, begin_);
    begin_ = 0;
    const std::size_t had = bytes_.size();
    bytes_.resize(had + piece);
    bytes_.resize(had + file_->Read(bytes_.data() + had, piece));
    return bytes_.size() > had;
  }

  std::unique_ptr<FileReader> file_;
  std::string bytes_;
  std::size_t begin_ = 0;
};

}  // namespace benevix
