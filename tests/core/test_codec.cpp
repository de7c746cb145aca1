#include <gtest/gtest.h>
#include <random>

#include "base/runtime_error.h"
#include "core/codec.h"

namespace benevix {
namespace {

using namespace codec_direction;

std::string Coded(const std::string& input, std::int16_t mode, std::int16_t direction,
                  const std::string& exeName = "Benevix") {
  std::string output = ">";  // the result is appended
  try {
    TextCodec(exeName).Codec(input, output, mode, direction);
  } catch (const RuntimeError&) {
    return "error";
  }
  return output;
}

TEST(TextCodec, ScramblesAndUnscrambles) {
  const struct {
    std::string input;
    std::int16_t mode, direction;
    const char* output;
  } cases[] = {
      {"A", 3, 1, ">2A"},      {"k", 3, 1, ">00"},     {"2A", 3, 2, ">A"},
      {"2a", 3, 2, ">A"},      {"\xFF", 3, 1, ">94"},  {"aaaaaaa", 3, 1, ">0A0A17000F040A"},
      {"A", 2, 1, ">09"},      {"A", 1, 1, ">03"},     {"", 9, 1, ">"},
      {"A", 0, 1, "error"},    {"2A", 4, 2, "error"},  {"2G", 3, 2, "error"},
      {"0x2A", 3, 2, "error"}, {"-1", 3, 2, "error"},  {"+1", 3, 2, "error"},
      {" 2", 3, 2, "error"},   {"2A ", 3, 2, "error"}, {"A", 3, 3, ">"},
      {"2AA", 3, 2, ">Aa"}};
  for (const auto& [input, mode, direction, output] : cases) {
    EXPECT_EQ(Coded(input, mode, direction), output) << input << " " << mode;
  }
  EXPECT_EQ(Coded("A", 1, kScramble, ""), "error");
  EXPECT_EQ(Coded("A", 1, kScramble, "Donor"), ">05");
  // Longer than the keys of 6 and 16 characters.
  EXPECT_EQ(Coded(std::string(14, 'A'), 3, kScramble), ">2A2A37202F242A2A37202F242A2A");
  EXPECT_EQ(Coded(std::string(17, 'A'), 2, kScramble), ">09203337243235610D202F3524332F3209");
}

TEST(TextCodec, UnscramblesWhatItScrambled) {
  std::mt19937 random(7);
  for (int i = 0; i < 3000; ++i) {
    std::string text(random() % 60, '\0');
    for (char& c : text) c = static_cast<char>(random());
    const auto mode = static_cast<std::int16_t>(1 + i % 3);
    const std::string digits = Coded(text, mode, kScramble).substr(1);
    EXPECT_EQ(digits.size(), 2 * text.size());
    EXPECT_EQ(digits.find_first_not_of("0123456789ABCDEF"), std::string::npos);
    EXPECT_EQ(Coded(digits, mode, kUnscramble), ">" + text);
    Coded(text, mode, kUnscramble);  // arbitrary bytes raise at most an error
  }
}

}  // namespace
}  // namespace benevix
