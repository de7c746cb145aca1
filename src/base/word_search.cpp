#include "base/word_search.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <vector>

#include "base/text.h"

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace benevix {
namespace {

// The commonest first. What is missing here, such as digits and accented letters, is rarer.
constexpr std::string_view kCommonLetters = " etaoinrshldcumfpgwybvkxjqz";

}  // namespace

WordSearch::WordSearch(std::string_view word) : lower_(LowerCase(word)), upper_(UpperCase(lower_)) {
  std::vector<std::size_t> places(word.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::ranges::stable_sort(places, std::ranges::greater(), [this](std::size_t place) {
    return kCommonLetters.find(lower_[place]);
  });
  for (std::size_t i = 0; i < rarest_.size(); ++i) {
    const std::size_t place = places[std::min(i, places.size() - 1)];
    rarest_[i] = {place, lower_[place], upper_[place]};
  }
}

bool WordSearch::StandsAt(const char* text) const {
  for (std::size_t i = 0; i < lower_.size(); ++i) {
    if (text[i] != lower_[i] && text[i] != upper_[i]) return false;
  }
  return true;
}

std::size_t WordSearch::Next(std::string_view text, std::size_t from) const {
  if (text.size() < lower_.size()) return kNone;
  const std::size_t end = text.size() - lower_.size() + 1;  // of the places where it can stand
#if defined(__SSE2__) || defined(_M_X64)
  const auto matches = [](const char* at, const Letter& letter) {
    const __m128i sixteen = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + letter.place));
    return _mm_or_si128(_mm_cmpeq_epi8(sixteen, _mm_set1_epi8(letter.lower)),
                        _mm_cmpeq_epi8(sixteen, _mm_set1_epi8(letter.upper)));
  };
  constexpr std::size_t step = 16;
  for (; from + step <= end; from += step) {
    const char* const at = text.data() + from;
    const __m128i both = _mm_and_si128(matches(at, rarest_[0]), matches(at, rarest_[1]));
    for (auto bits = static_cast<unsigned>(_mm_movemask_epi8(both)); bits != 0; bits &= bits - 1) {
      const auto place = static_cast<std::size_t>(std::countr_zero(bits));
      if (StandsAt(at + place)) return from + place;
    }
  }
#endif
  for (; from < end; ++from) {
    if (StandsAt(text.data() + from)) return from;
  }
  return kNone;
}

}  // namespace benevix
