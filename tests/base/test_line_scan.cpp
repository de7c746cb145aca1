#include <gtest/gtest.h>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "base/line_scan.h"

namespace benevix {
namespace {

using Found = std::vector<std::tuple<std::size_t, std::size_t, std::size_t>>;  // begin, end, comma

Found ScanNaively(const std::string& text) {
  Found found;
  std::size_t begin = 0, comma = LineScan::kNone;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == ',') comma = at;
    if (text[at] != '\n') continue;
    found.emplace_back(begin, at, comma);
    begin = at + 1;
  }
  return found;
}

// Pieces of random lengths, and of whole 64s with a byte more or less.
TEST(LineScan, FindsWhatANaiveScanFinds) {
  std::mt19937 random(4);
  for (int round = 0; round < 3000; ++round) {
    const auto rarity = 2 + random() % 80;
    std::string text(random() % 700, '\0');
    for (char& c : text) {
      const auto kind = random() % rarity;
      c = kind == 0 ? '\n' : kind == 1 ? ',' : static_cast<char>(random());
    }
    const Found expected = ScanNaively(text);
    const std::size_t stopAfter = random() % 4 == 0 ? random() % 5 : text.size();
    LineScan scan;
    Found found;
    bool goesOn = true;
    for (std::size_t end = 0; goesOn && end < text.size();) {
      end += random() % 2 == 0 ? random() % 200 : 64 * (random() % 4) + random() % 3;
      end = std::min(end, text.size());
      goesOn = scan.Advance(text.data(), end,
                            [&](std::size_t begin, std::size_t lineEnd, std::size_t comma) {
                              found.emplace_back(begin, lineEnd, comma);
                              return found.size() <= stopAfter;
                            });
    }
    if (goesOn) {
      ASSERT_EQ(found, expected);
      const auto comma = text.rfind(',');
      EXPECT_EQ(scan.LastComma(), comma == std::string::npos ? LineScan::kNone : comma);
      EXPECT_EQ(scan.LineBegin(), text.rfind('\n') + 1);
    } else {
      ASSERT_EQ(found, Found(expected.begin(),
                             expected.begin() + static_cast<std::ptrdiff_t>(stopAfter + 1)));
    }
  }
}

}  // namespace
}  // namespace benevix
