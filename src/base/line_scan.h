#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace benevix {
namespace line_scan {

// Bit i stands for byte i of 64.
struct Masks {
  std::uint64_t lineFeeds = 0;
  std::uint64_t commas = 0;
};

inline Masks Match64(const char* bytes) {
  Masks masks;
#if defined(__SSE2__) || defined(_M_X64)
  const __m128i lineFeed = _mm_set1_epi8('\n');
  const __m128i comma = _mm_set1_epi8(',');
  for (std::size_t at = 0; at < 64; at += 16) {
    const __m128i sixteen = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + at));
    const auto mask = [&](__m128i wanted) {
      const int bits = _mm_movemask_epi8(_mm_cmpeq_epi8(sixteen, wanted));
      return static_cast<std::uint64_t>(static_cast<unsigned>(bits)) << at;
    };
    masks.lineFeeds |= mask(lineFeed);
    masks.commas |= mask(comma);
  }
#else
  for (int i = 0; i < 64; ++i) {
    masks.lineFeeds |= static_cast<std::uint64_t>(bytes[i] == '\n') << i;
    masks.commas |= static_cast<std::uint64_t>(bytes[i] == ',') << i;
  }
#endif
  return masks;
}

}  // namespace line_scan

// Finds the line feeds of a text that arrives in chunks, and the last comma before each. As the one
// pass over a list of 100 MB, it compares 64 bytes at a time.
class LineScan {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  // From `begin` on, where a line begins.
  explicit LineScan(std::size_t begin = 0) : seen_(begin), lineBegin_(begin) {}

  // Scans on from where the last call stopped to `end`; `text` always begins at the same byte.
  // Calls line(begin, end, comma) for each line feed, with the offsets of the line's first byte, of
  // the line feed and of the last comma before it, which may belong to an earlier line (kNone
  // without one). Stops and returns false when the callback returns false.
  template <class OnLine>
  bool Advance(const char* text, std::size_t end, OnLine&& line);

  // Offsets of the line that has no line feed yet, and of the last comma.
  [[nodiscard]] std::size_t LineBegin() const { return lineBegin_; }
  [[nodiscard]] std::size_t LastComma() const { return lastComma_; }

 private:
  std::size_t seen_;
  std::size_t lineBegin_;
  std::size_t lastComma_ = kNone;
};

template <class OnLine>
bool LineScan::Advance(const char* text, std::size_t end, OnLine&& line) {
  const auto highestBit = [](std::uint64_t bits) {
    return static_cast<std::size_t>(63 - std::countl_zero(bits));
  };
  for (; seen_ + 64 <= end; seen_ += 64) {
    line_scan::Masks masks = line_scan::Match64(text + seen_);
    for (; masks.lineFeeds != 0; masks.lineFeeds &= masks.lineFeeds - 1) {
      const auto at = static_cast<std::size_t>(std::countr_zero(masks.lineFeeds));
      const std::uint64_t before = masks.commas & ((std::uint64_t{1} << at) - 1);
      const std::size_t comma = before != 0 ? seen_ + highestBit(before) : lastComma_;
      const std::size_t begin = lineBegin_;
      lineBegin_ = seen_ + at + 1;
      if (!line(begin, seen_ + at, comma)) return false;
    }
    if (masks.commas != 0) lastComma_ = seen_ + highestBit(masks.commas);
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
