#include <cmath>
#include <gtest/gtest.h>
#include <optional>
#include <random>

#include "base/number_text.h"
#include "base/runtime_error.h"

namespace benevix {
namespace {

// The outcome of a reading that can raise an error; nothing for the error.
template <class F>
auto Outcome(F read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

TEST(NumberText, ReadsTheLeadingNumber) {
  const struct {
    std::string text;
    std::optional<double> value;
  } cases[] = {{"", 0},
               {"abc", 0},
               {".", 0},
               {"-", 0},
               {"1,000.00", 1},
               {" \t1 2\n3 . 4 5 ", 123.45},
               {"1\r2", 1},
               {"-.5x", -0.5},
               {"+7", 7},
               {"--7", 0},
               {"1.2.3", 1.2},
               {"1e3", 1000},
               {"1D-2", 0.01},
               {"1e", 1},
               {"1e+", 1},
               {"2 e 1", 20},
               {"e5", 0},
               {std::string("1\0"
                            "2",
                            3),
                1},
               {"&HFF", 255},
               {"&hffff", -1},
               {"&HFFFF&", 65535},
               {"&H10000", 65536},
               {"&HFFFFFFFF", -1},
               {"&H100000000", std::nullopt},
               {"&O17", 15},
               {"&O18", 1},
               {"&H", 0},
               {"&X", 0},
               {"1e400", std::nullopt},
               {"1e-400", 0},
               {"0e999999999999", 0},
               {"1e999999999999", std::nullopt},
               {"1e-999999999999", 0},
               {std::string(400, '9'), std::nullopt},
               {"0." + std::string(400, '0') + "1e401", 1},
               {"1" + std::string(400, '0') + "e-400", 1},
               {std::string(1'000'000, '0') + "8", 8}};
  for (const auto& [text, value] : cases) {
    EXPECT_EQ(Outcome([&, &t = text] { return Val(t); }), value) << text.substr(0, 40);
  }
}

TEST(NumberText, TellsWhatIsNumeric) {
  for (const char* text : {"1,000", "$5", "1e5", "&H10", "&O7", "(5)", "5-", "-.5", "5 ", "\t5",
                           "+5", "5.", "1.5e-3", "$1,234.50", "-$5", "&HFFFF&"}) {
    EXPECT_TRUE(IsNumeric(text)) << text;
  }
  for (const char* text :
       {"",    " ",   ".",   "+",  "1 2",   "50%",  "True",  "1/2/2003", "(5", "5)",
        "-5-", "--5", "$$5", "1,", ",1",    "1,,0", "1.2.3", "1e",       "&H", "&HG",
        "&",   "$",   "x",   "5x", "1e400", "0x10", "nan",   "inf"}) {
    EXPECT_FALSE(IsNumeric(text)) << text;
  }
  EXPECT_FALSE(IsNumeric(std::string("5\0", 2)));
  EXPECT_EQ(ParseNumber("(1,234.5)"), -1234.5);
  EXPECT_EQ(ParseNumber("5-"), -5);
  EXPECT_EQ(ParseNumber("&HFFFF"), -1);
}

TEST(NumberText, ReadsAnyBytesWithoutHarm) {
  std::mt19937 random(3);
  using std::string_literals::operator""s;
  const std::string letters = "0019.,-+eEdD&HhO()$ \t\n\r\0\xFF"s;
  for (int i = 0; i < 50000; ++i) {
    std::string text;
    for (auto n = random() % 12; n > 0; --n) text += letters[random() % letters.size()];
    const auto leading = Outcome([&] { return Val(text); });
    EXPECT_TRUE(!leading || std::isfinite(*leading)) << text;
    const auto whole = ParseNumber(text);
    EXPECT_TRUE(!whole || std::isfinite(*whole)) << text;
  }
}

TEST(NumberText, ReadsBooleans) {
  const struct {
    const char* text;
    std::optional<bool> value;
  } cases[] = {{"True", true}, {"fALSE", false}, {"0", false},          {"-1", true},
               {"0.1", true},  {"&H0", false},   {"yes", std::nullopt}, {"", std::nullopt}};
  for (const auto& [text, value] : cases) {
    EXPECT_EQ(Outcome([t = text] { return TextToBoolean(t); }), value) << text;
  }
}

TEST(NumberText, RoundsToWholeNumbersHalvesToEven) {
  const struct {
    double value;
    std::optional<std::int16_t> whole;
  } cases[] = {
      {2.5, 2},       {3.5, 4},           {-2.5, -2},      {-3.5, -4},  {32767.4999, 32767},
      {32767.5, {}},  {-32768.5, -32768}, {-32768.51, {}}, {1e300, {}}, {std::nan(""), {}},
      {-INFINITY, {}}};
  for (const auto& [value, whole] : cases) {
    EXPECT_EQ(Outcome([v = value] { return ToInt16(v); }), whole) << value;
  }
  EXPECT_EQ(ToInt32(2147483647.4), 2147483647);
  EXPECT_THROW(ToInt32(2147483647.5), RuntimeError);
  EXPECT_THROW(ToSingle(1e39), RuntimeError);
}

TEST(NumberText, WritesDoublesAndSingles) {
  const struct {
    double value;
    const char* text;
  } doubles[] = {{0, "0"},
                 {-0.0, "0"},
                 {-1.5, "-1.5"},
                 {0.1, "0.1"},
                 {1.0 / 3, "0.333333333333333"},
                 {2.0 / 3, "0.666666666666667"},
                 {0.0750750750750751, "7.50750750750751E-02"},
                 {123456789012345, "123456789012345"},
                 {999999999999999.5, "1E+15"},
                 {100000000000000.5, "100000000000001"},  // a half, away from zero
                 {-100000000000000.5, "-100000000000001"},
                 {1e15, "1E+15"},
                 {1.5e-7, "0.00000015"},
                 {1e-15, "0.000000000000001"},
                 {1e-16, "1E-16"},
                 {1e100, "1E+100"},
                 {5e-324, "4.94065645841247E-324"}};
  for (const auto& [value, text] : doubles) EXPECT_EQ(DoubleToText(value), text);
  const struct {
    float value;
    const char* text;
  } singles[] = {
      {45296.13F, "45296.13"}, {45296, "45296"},           {0.1F, "0.1"},
      {1234567, "1234567"},    {16777216, "1.677722E+07"}, {0.01234567F, "1.234567E-02"}};
  for (const auto& [value, text] : singles) EXPECT_EQ(SingleToText(value), text);
  EXPECT_THROW(DoubleToText(std::nan("")), RuntimeError);
}

}  // namespace
}  // namespace benevix
