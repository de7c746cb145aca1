#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace benevix {

// Finds a word in a long text, ignoring case. A search over a list of 100 MB compares sixteen
// places at a time by two of the word's letters, the rarest ones; few places need another look.
class WordSearch {
 public:
  static constexpr std::size_t kNone = std::string_view::npos;

  // The word must not be empty.
  explicit WordSearch(std::string_view word);

  // Where the word stands first at or behind `from`; kNone when it does not.
  [[nodiscard]] std::size_t Next(std::string_view text, std::size_t from) const;

 private:
  // One of the word's letters, in both cases.
  struct Letter {
    std::size_t place = 0;
    char lower = 0, upper = 0;
  };

  [[nodiscard]] bool StandsAt(const char* text) const;

  std::string lower_, upper_;
  std::array<Letter, 2> rarest_;
};

}  // namespace benevix
