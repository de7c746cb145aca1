#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <string>
#include <string_view>

#include "base/text.h"

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace benevix {

// Searches for a word in texts of the code page, ignoring case. As millions of texts are searched
// while the user types, 16 places are compared at a time, by the word's first and last letter.
class WordSearch {
 public:
  // The word must not be empty.
  explicit WordSearch(std::string_view word)
      : lower_(LowerCase(word)), first_(LetterOf(lower_.front())), last_(LetterOf(lower_.back())) {}

  [[nodiscard]] std::size_t Size() const { return lower_.size(); }

  // Where the word first stands whole between `begin` and `end`; null without it. The bytes from
  // `end` to `readable` may be read, too, so that a short text need not be searched byte by byte.
  [[nodiscard]] const char* Find(const char* begin, const char* end, const char* readable) const;

  [[nodiscard]] bool IsIn(std::string_view text) const {
    const char* const end = text.data() + text.size();
    return Find(text.data(), end, end) != nullptr;
  }

 private:
  struct Letter {
    char fold, letter;
  };
  static Letter LetterOf(char lower) {
    const char upper = UpperCase(std::string_view(&lower, 1)).front();
    const char fold = static_cast<char>(lower ^ upper);
    return {fold, static_cast<char>(lower | fold)};
  }

  [[nodiscard]] bool StandsAt(const char* place) const {
    for (std::size_t i = 0; i < lower_.size(); ++i) {
      if (!SameLetter(place[i], lower_[i])) return false;
    }
    return true;
  }

  std::string lower_;
  Letter first_, last_;
};

inline const char* WordSearch::Find(const char* begin, const char* end,
                                    const char* readable) const {
  const std::size_t size = lower_.size();
  if (static_cast<std::size_t>(end - begin) < size) return nullptr;
  const char* const last = end - size;  // the last place where it can stand
  const char* at = begin;
#if defined(__SSE2__) || defined(_M_X64)
  constexpr std::ptrdiff_t places = 16;
  const auto load = [](const char* bytes) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
  };
  // Most pairs of a small and a capital letter differ by one bit, which `fold` sets.
  const __m128i fold1 = _mm_set1_epi8(first_.fold), letter1 = _mm_set1_epi8(first_.letter);
  const __m128i fold2 = _mm_set1_epi8(last_.fold), letter2 = _mm_set1_epi8(last_.letter);
  const auto match = [&](const char* bytes) {
    const __m128i first = _mm_cmpeq_epi8(_mm_or_si128(load(bytes), fold1), letter1);
    const __m128i second = _mm_cmpeq_epi8(_mm_or_si128(load(bytes + size - 1), fold2), letter2);
    return _mm_and_si128(first, second);
  };
  const auto room = (readable - begin) - static_cast<std::ptrdiff_t>(size) + 1;
  const char* const stop =
      begin + std::min<std::ptrdiff_t>(last + 1 - begin, room - 2 * places + 1);
  // Bytes on the way from memory, far enough ahead to be here when it is their turn: without it a
  // search of 100 MB takes three times as long.
  constexpr std::ptrdiff_t ahead = 4096;
  for (; at < stop; at += 2 * places) {
    _mm_prefetch(at + ahead, _MM_HINT_T0);
    const __m128i m0 = match(at), m1 = match(at + places);
    if (_mm_movemask_epi8(_mm_or_si128(m0, m1)) == 0) continue;
    auto bits = static_cast<unsigned>(_mm_movemask_epi8(m0)) |
                static_cast<unsigned>(_mm_movemask_epi8(m1)) << 16;
    for (; bits != 0; bits &= bits - 1) {
      const char* const place = at + std::countr_zero(bits);
      if (place > last) return nullptr;
      if (StandsAt(place)) return place;
    }
  }
#endif
  for (; at <= last; ++at) {
    if (StandsAt(at)) return at;
  }
  return nullptr;
}

}  // namespace benevix
