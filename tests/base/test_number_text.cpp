#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

#include "../text_cases.h"
#include "base/format.h"
#include "base/number_text.h"
#include "base/runtime_error.h"

namespace benevix {
namespace {

std::string ValText(const std::string& text) {
  try {
    return DoubleToText(Val(text));
  } catch (const RuntimeError&) {
    return "error";
  }
}

TEST(NumberText, ReadsTheLeadingNumber) {
  for (const auto& [text, value] : Cases({" => 0",
                                          "abc => 0",
                                          ". => 0",
                                          "- => 0",
                                          "1,000.00 => 1",
                                          "1\r2 => 1",
                                          "-.5x => -0.5",
                                          " \t1 2\n3 . 4 5  => 123.45",
                                          "--7 => 0",
                                          "1.2.3 => 1.2",
                                          "1D-2 => 0.01",
                                          "1e+ => 1",
                                          "2 e 1 => 20",
                                          "e5 => 0",
                                          "&HFF => 255",
                                          "&hffff => -1",
                                          "&HFFFF& => 65535",
                                          "&H10000 => 65536",
                                          "&HFFFFFFFF => -1",
                                          "&H100000000 => error",
                                          "&O18 => 1",
                                          "&X => 0",
                                          "&123 => 83",
                                          "50% => 50",
                                          "50.5% => error",
                                          "1.34& => error",
                                          "1e400 => error"})) {
    EXPECT_EQ(ValText(text), value) << text;
  }
  for (const auto& [text, value] : Cases(
           {"1e-400 => 0", "0e999999999999 => 0", "1e999999999999 => error",
            std::string(400, '9') + " => error", "0." + std::string(400, '0') + "1e401 => 1",
            "1" + std::string(400, '0') + "e-400 => 1", std::string(1'000'000, '0') + "8 => 8"})) {
    EXPECT_EQ(ValText(text), value) << text.substr(0, 40);
  }
  EXPECT_EQ(Val({"1\0002", 3}), 1);
}

TEST(NumberText, RecognizesNumericTexts) {
  for (const char* text : {"1,000",
                           "$5",
                           "1e5",
                           "&H10",
                           "&O7",
                           "(5)",
                           "5-",
                           "-.5",
                           "5 ",
                           "\t5",
                           "+5",
                           "5.",
                           "1.5e-3",
                           "$1,234.50",
                           "-$5",
                           "&HFFFF&",
                           "1,,0",
                           "+ 0 ",
                           " + 0",
                           "459..",
                           "( 5 )",
                           "5$",
                           "($1,23,,3.4,,,5,,E67$)",
                           "&123",
                           "5 -"}) {
    EXPECT_TRUE(IsNumeric(text)) << text;
  }
  for (const char* text : {"",   " ",   ".",   "+",   "1 2", "50%",   "True", "1/2/2003", "(5",
                           "5)", "-5-", "--5", "$$5", "1,",  ",1",    "4..5", "1.2.3",    "1e",
                           "&H", "&HG", "&",   "$",   "5x",  "1e400", "0x10", "nan",      "inf"}) {
    EXPECT_FALSE(IsNumeric(text)) << text;
  }
  EXPECT_FALSE(IsNumeric(std::string("5\0", 2)));
  EXPECT_EQ(ParseNumber("(1,234.5)"), -1234.5);
  for (const char* text : {"True", "tRUE", "-1", "0.1"}) EXPECT_TRUE(TextToBoolean(text)) << text;
  for (const char* text : {"fALSE", "0", "&H0"}) EXPECT_FALSE(TextToBoolean(text)) << text;
  for (const char* text : {"yes", ""}) EXPECT_THROW(TextToBoolean(text), RuntimeError) << text;
}

TEST(NumberText, ReadsRandomBytesSafely) {
  std::mt19937 random(3);
  using std::string_literals::operator""s;
  const std::string letters = "0019.,-+eEdD&HhO()$ \t\n\r\0\xFF"s;
  for (int i = 0; i < 50000; ++i) {
    std::string text;
    for (auto n = random() % 12; n > 0; --n) text += letters[random() % letters.size()];
    try {
      EXPECT_TRUE(std::isfinite(Val(text))) << text;
    } catch (const RuntimeError&) {
    }
    EXPECT_TRUE(std::isfinite(ParseNumber(text).value_or(0))) << text;
  }
}

TEST(NumberText, RoundsToWholeNumbersHalfToEven) {
  const std::pair<double, int> cases[] = {
      {2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {32767.4999, 32767}, {-32768.5, -32768}};
  for (const auto& [value, whole] : cases) EXPECT_EQ(ToInt16(value), whole);
  for (const double value : {32767.5, -32768.51, 1e300, std::nan(""), -HUGE_VAL}) {
    EXPECT_THROW(ToInt16(value), RuntimeError) << value;
  }
  EXPECT_EQ(ToInt32(2147483647.4), 2147483647);
  EXPECT_THROW(ToInt32(2147483647.5), RuntimeError);
  EXPECT_THROW(ToSingle(1e39), RuntimeError);
}

TEST(NumberText, WritesDoublesAndSingles) {
  for (const auto& [value, text] :
       Cases({"-0.0 => 0", "-1.5 => -1.5", "0.1 => 0.1", "0.66666666666666667 => 0.666666666666667",
              "0.0750750750750751 => 7.50750750750751E-02", "123456789012345 => 123456789012345",
              "999999999999999.5 => 1E+15", "100000000000000.5 => 100000000000001",
              "-100000000000000.5 => -100000000000001", "1e-15 => 0.000000000000001",
              "1e-16 => 1E-16", "1e100 => 1E+100", "5e-324 => 4.94065645841247E-324"})) {
    EXPECT_EQ(DoubleToText(std::strtod(value.c_str(), nullptr)), text);
  }
  for (const auto& [value, text] :
       Cases({"45296.13 => 45296.13", "45296 => 45296", "0.1 => 0.1", "1234567 => 1234567",
              "16777216 => 1.677722E+07", "0.01234567 => 1.234567E-02"})) {
    EXPECT_EQ(SingleToText(std::strtof(value.c_str(), nullptr)), text);
  }
}

TEST(Format, AppliesPatterns) {
  const struct {
    const char *value, *money, *amount, *fee;
  } cases[] = {{"0", ".00", ".00", "."},
               {"0.5", ".50", ".50", ".5"},
               {"12", "12.00", "12.00", "12."},
               {"9.999", "10.00", "10.00", "10."},
               {"0.005", ".01", ".01", ".01"},
               {"-1.005", "-1.01", "-1.01", "-1.01"},
               {"-0.001", "-.00", "-.00", "-."},
               {"999.995", "1,000.00", "1000.00", "1000."},
               {"1234567.891", "1,234,567.89", "1234567.89", "1234567.89"},
               {"12345678901.5", "12,345,678,901.50", "12345678901.50", "12345678901.5"}};
  for (const auto& [value, money, amount, fee] : cases) {
    EXPECT_EQ(FormatText(value, kMoneyPattern), money) << value;
    EXPECT_EQ(Format(Currency::FromText(value), kMoneyPattern), money) << value;
    EXPECT_EQ(Format(Currency::FromText(value), kAmountPattern), amount) << value;
    EXPECT_EQ(Format(Currency::FromText(value), kFeePattern), fee) << value;
  }
  EXPECT_EQ(FormatDouble(1, "#.0.##0"), "1.0.000");
  EXPECT_EQ(FormatDouble(1.0003, "#.0.##0"), "1.0.003");
  EXPECT_EQ(FormatDouble(1234, "#,#"), "1,234");
  EXPECT_EQ(FormatDouble(123456, "0#"), "123456");
  EXPECT_EQ(FormatDouble(7, "000"), "007");
  EXPECT_EQ(FormatDouble(-0.0, "0.0"), "0.0");
  EXPECT_EQ(FormatDouble(0.1 + 0.2, "#.################"), ".3");
  // A currency keeps more digits than a double, a single fewer.
  EXPECT_EQ(Format(Currency::FromUnits(9223372036854775807), kFeePattern), "922337203685477.58");
  EXPECT_EQ(FormatSingle(2.0013F, "#.0.##0"), "2.0.013");
  EXPECT_EQ(FormatSingle(16777216.0F, "#,#.0"), "16,777,220.0");
  EXPECT_EQ(FormatText("50%", "0.0"), "50%");
}

}  // namespace
}  // namespace benevix
