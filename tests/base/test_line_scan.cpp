#include <gtest/gtest.h>
#include <random>
#include <tuple>
#include <vector>

#include "base/line_scan.h"

namespace benevix {
namespace {

// Chunks of random lengths, half of them close to a multiple of the 64 bytes compared at a time.
TEST(LineScan, AgreesWithANaiveScan) {
  std::mt19937 random(4);
  for (int round = 0; round < 3000; ++round) {
    const auto rarity = 2 + random() % 80;
    std::string text(random() % 700, '\0');
    std::vector<std::tuple<std::size_t, std::size_t, std::size_t>> expected, found;
    std::size_t begin = 0, comma = LineScan::kNone;
    for (std::size_t at = 0; at < text.size(); ++at) {
      const auto kind = random() % rarity;
      text[at] = kind == 0 ? '\n' : kind == 1 ? ',' : static_cast<char>(random());
      if (text[at] == ',') comma = at;
      if (text[at] != '\n') continue;
      expected.emplace_back(begin, at, comma);
      begin = at + 1;
    }
    const std::size_t stopAt = random() % 4 == 0 ? 1 + random() % 5 : text.size() + 1;
    LineScan scan;
    bool goesOn = true;
    for (std::size_t end = 0; goesOn && end < text.size();) {
      end += random() % 2 == 0 ? random() % 200 : 64 * (random() % 4) + random() % 3;
      end = std::min(end, text.size());
      goesOn = scan.Advance(text.data(), end, [&](auto from, auto to, auto lastComma) {
        found.emplace_back(from, to, lastComma);
        return found.size() < stopAt;
      });
    }
    EXPECT_EQ(goesOn, expected.size() < stopAt);
    expected.resize(std::min(expected.size(), stopAt));
    ASSERT_EQ(found, expected);
    if (!goesOn) continue;
    EXPECT_EQ(scan.LineBegin(), begin);
    EXPECT_EQ(scan.LastComma(), comma);
  }
}

}  // namespace
}  // namespace benevix
