#pragma once

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace benevix {

// Reads the lines of a file between two offsets, without holding all of them in memory. Lines end
// with LF, which is not returned; the last one may have none.
class LineReader {
 public:
  explicit LineReader(std::unique_ptr<FileReader> file, std::size_t offset = 0,
                      std::size_t end = std::numeric_limits<std::size_t>::max())
      : file_(std::move(file)), offset_(offset), end_(end) {}

  // The next line, valid until the next call; nothing at the end. Raises RuntimeError when the file
  // cannot be read.
  std::optional<std::string_view> Next() {
    for (std::size_t searchFrom = begin_;;) {
      const auto end = bytes_.find('\n', searchFrom);
      if (end != std::string::npos) return Take(end, 1);
      searchFrom = bytes_.size() - begin_;
      if (!ReadChunk()) break;
    }
    if (begin_ == bytes_.size()) return std::nullopt;
    return Take(bytes_.size(), 0);
  }

 private:
  std::string_view Take(std::size_t end, std::size_t lineFeed) {
    const std::size_t begin = begin_;
    begin_ = end + lineFeed;
    return std::string_view(bytes_).substr(begin, end - begin);
  }

  // Drops the lines already returned and appends the next chunk; false at the end of the file.
  bool ReadChunk() {
    constexpr std::size_t chunk = std::size_t{64} << 10;
    bytes_.erase(0, begin_);
    begin_ = 0;
    const std::size_t size = bytes_.size();
    bytes_.resize(size + std::min(chunk, end_ - offset_));
    const std::size_t count = file_->Read(offset_, bytes_.data() + size, bytes_.size() - size);
    bytes_.resize(size + count);
    offset_ += count;
    return count > 0;
  }

  std::unique_ptr<FileReader> file_;
  std::size_t offset_, end_;  // of the next chunk, and of the last
  std::string bytes_;
  std::size_t begin_ = 0;
};

}  // namespace benevix
