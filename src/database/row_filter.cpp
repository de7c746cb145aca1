#include "database/row_filter.h"

#include <algorithm>
#include <future>
#include <thread>

#include "base/lines.h"
#include "base/word_search.h"

namespace benevix {
namespace {

constexpr int kFewRows = 100'000;  // less than that is not worth a second thread

// The words that a country does not have, the longest one first; all words without a country.
std::vector<WordSearch> WantedIn(const OrganizationList& list, int heading,
                                 const std::vector<WordSearch>& words) {
  std::vector<WordSearch> wanted;
  const std::string_view country = heading == 0 ? "" : list.View(heading, column::kCountry);
  std::copy_if(words.begin(), words.end(), std::back_inserter(wanted),
               [&](const WordSearch& word) { return !word.IsIn(country); });
  std::stable_sort(wanted.begin(), wanted.end(),
                   [](const WordSearch& a, const WordSearch& b) { return a.Size() > b.Size(); });
  return wanted;
}

// Adds those of the organizations from `from` to `to`, between which there is no heading, that have
// each of the words.
void AddRows(const OrganizationList& list, const std::vector<WordSearch>& words, int from, int to,
             ShownRows& rows) {
  for (int row = from; row <= to; ++row) {
    if (!words.empty()) row = list.FindWord(words.front(), row, to);
    if (row == 0) return;
    if (words.size() < 2 ||
        std::all_of(words.begin() + 1, words.end(),
                    [&](const WordSearch& word) { return list.FindWord(word, row, row) != 0; })) {
      rows.push_back(row);
    }
  }
}

// The rows of a part of the list, or of those of `within` that lie in it, with the headings of
// their countries.
ShownRows RowsOfPart(const OrganizationList& list, const std::vector<WordSearch>& words,
                     const ShownRows* within, int from, int to) {
  ShownRows rows;
  rows.reserve(static_cast<std::size_t>(to - from) + 2);
  const std::vector<int>& headings = list.Headings();
  auto next = std::upper_bound(headings.begin(), headings.end(), from);
  int heading = next == headings.begin() ? 0 : *(next - 1);
  for (int begin = from; begin <= to;) {
    const int end = next == headings.end() ? to : std::min(to, *next - 1);
    const std::vector<WordSearch> wanted = WantedIn(list, heading, words);
    const std::size_t before = rows.size();
    if (heading != 0) rows.push_back(heading);
    const std::size_t first = rows.size();
    if (within == nullptr) {
      AddRows(list, wanted, begin == heading ? begin + 1 : begin, end, rows);
    } else {
      for (auto row = std::lower_bound(within->begin(), within->end(), begin);
           row != within->end() && *row <= end; ++row) {
        if (*row != heading) AddRows(list, wanted, *row, *row, rows);
      }
    }
    if (rows.size() == first) rows.resize(before);
    begin = end + 1;
    if (next != headings.end()) heading = *next++;
  }
  return rows;
}

}  // namespace

std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words;
  while (!text.empty()) {
    const std::string_view word = CutField(text, ' ');
    if (!word.empty()) words.emplace_back(word);
  }
  return words;
}

ShownRows RowsWith(const OrganizationList& list, const std::vector<std::string>& words,
                   const ShownRows* within) {
  const std::vector<WordSearch> searches(words.begin(), words.end());
  const int count = list.Count();
  const int threads = count < kFewRows || within != nullptr
                          ? 1
                          : static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  const auto lastOf = [&](int thread) {
    return static_cast<int>(std::int64_t{count} * (thread + 1) / threads);
  };
  std::vector<std::future<ShownRows>> others;
  for (int thread = 1; thread < threads; ++thread) {
    others.push_back(std::async(std::launch::async, [&, thread] {
      return RowsOfPart(list, searches, within, lastOf(thread - 1) + 1, lastOf(thread));
    }));
  }
  ShownRows rows = RowsOfPart(list, searches, within, 1, lastOf(0));
  for (auto& other : others) {
    const ShownRows part = other.get();
    // A part that begins within a country names its heading again.
    const bool again = !rows.empty() && !part.empty() && part.front() <= rows.back();
    rows.insert(rows.end(), part.begin() + (again ? 1 : 0), part.end());
  }
  return rows;
}

}  // namespace benevix
