#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace benevix {
namespace line_scan {

struct Marks {
  std::uint64_t lineFeeds = 0;
  std::uint64_t commas = 0;
};

// One bit for each of 64 bytes.
inline Marks MarksOf64(const char* bytes) {
  Marks marks;
#if defined(__SSE2__) || defined(_M_X64)
  const __m128i lineFeed = _mm_set1_epi8('\n');
  const __m128i comma = _mm_set1_epi8(',');
  for (std::size_t at = 0; at < 64; at += 16) {
    const __m128i sixteen = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + at));
    const auto mask = [&](__m128i wanted) {
      const int bits = _mm_movemask_epi8(_mm_cmpeq_epi8(sixteen, wanted));
      return static_cast<std::uint64_t>(static_cast<unsigned>(bits)) << at;
    };
    marks.lineFeeds |= mask(lineFeed);
    marks.commas |= mask(comma);
  }
#else
  for (int i = 0; i < 64; ++i) {
    marks.lineFeeds |= static_cast<std::uint64_t>(bytes[i] == '\n') << i;
    marks.commas |= static_cast<std::uint64_t>(bytes[i] == ',') << i;
  }
#endif
  return marks;
}

}  // namespace line_scan

// Finds line ends in bytes that arrive piece by piece, and on the way the last comma before each.
// It is the one pass over a list of a hundred megabytes, so it looks at 64 bytes at a time.
class LineScan {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  // Takes the bytes up to `end` of `text` that were not seen yet and calls line(begin, end, comma)
  // for each line feed: where the line begins, where the line feed stands, and the last comma
  // before it (which may belong to an earlier line; kNone when there was none yet). The callback
  // gives false to end the scan.
  template <class OnLine>
  bool Advance(const char* text, std::size_t end, OnLine&& line);

  [[nodiscard]] std::size_t LineBegin() const { return lineBegin_; }
  [[nodiscard]] std::size_t LastComma() const { return lastComma_; }

 private:
  std::size_t seen_ = 0;
  std::size_t lineBegin_ = 0;
  std::size_t lastComma_ = kNone;
};

template <class OnLine>
bool LineScan::Advance(const char* text, std::size_t end, OnLine&& line) {
  const auto lastOf = [](std::uint64_t bits) {
    return static_cast<std::size_t>(63 - std::countl_zero(bits));
  };
  for (; seen_ + 64 <= end; seen_ += 64) {
    line_scan::Marks marks = line_scan::MarksOf64(text + seen_);
    for (; marks.lineFeeds != 0; marks.lineFeeds &= marks.lineFeeds - 1) {
      const auto at = static_cast<std::size_t>(std::countr_zero(marks.lineFeeds));
      const std::uint64_t before = marks.commas & ((std::uint64_t{1} << at) - 1);
      const std::size_t comma = before != 0 ? seen_ + lastOf(before) : lastComma_;
      const std::size_t begin = lineBegin_;
      lineBegin_ = seen_ + at + 1;
      if (!line(begin, seen_ + at, comma)) return false;
    }
    if (marks.commas != 0) lastComma_ = seen_ + lastOf(marks.commas);
  }
  for (; seen_ < end; ++seen_) {
    if (text[seen_] == ',') lastComma_ = seen_;
    if (text[seen_] != '\n') continue;
    const std::size_t begin = lineBegin_;
    lineBegin_ = seen_ + 1;
    if (!line(begin, seen_, lastComma_)) return false;
  }
  return true;
}

}  // namespace benevix
