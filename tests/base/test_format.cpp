#include <gtest/gtest.h>

#include "base/format.h"

namespace benevix {
namespace {

TEST(Format, WritesThePatternsOfTheProgram) {
  const struct {
    const char *value, *money, *amount, *fee;
  } cases[] = {{"0", ".00", ".00", "."},
               {"0.5", ".50", ".50", ".5"},
               {"12", "12.00", "12.00", "12."},
               {"9.999", "10.00", "10.00", "10."},
               {"0.005", ".01", ".01", ".01"},
               {"0.0049", ".00", ".00", "."},
               {"-1.005", "-1.01", "-1.01", "-1.01"},
               {"-0.001", "-.00", "-.00", "-."},
               {"999.995", "1,000.00", "1000.00", "1000."},
               {"123.4", "123.40", "123.40", "123.4"},
               {"1234567.891", "1,234,567.89", "1234567.89", "1234567.89"},
               {"12345678901.5", "12,345,678,901.50", "12345678901.50", "12345678901.5"}};
  for (const auto& [value, money, amount, fee] : cases) {
    EXPECT_EQ(FormatText(value, kMoneyPattern), money) << value;
    EXPECT_EQ(Format(Currency::FromText(value), kMoneyPattern), money) << value;
    EXPECT_EQ(Format(Currency::FromText(value), kAmountPattern), amount) << value;
    EXPECT_EQ(Format(Currency::FromText(value), kFeePattern), fee) << value;
  }
  // A currency has more digits than a double.
  EXPECT_EQ(Format(Currency::FromUnits(9223372036854775807), kMoneyPattern),
            "922,337,203,685,477.58");
}

TEST(Format, TakesOtherPatternsApart) {
  const struct {
    double value;
    const char *pattern, *text;
  } cases[] = {{1, "#.0.##0", "1.0.000"},
               {1.0003, "#.0.##0", "1.0.003"},
               {2.0013, "#.0.##0", "2.0.013"},
               {7, "000", "007"},
               {1234, "#,#", "1,234"},
               {1234.5, "###,0.0", "1,234.5"},
               {1234, "#,", "1234"},
               {123456, "0#", "123456"},
               {0.5, "0", "1"},
               {2.5, "#", "3"},
               {-0.0, "0.0", "0.0"},
               {1e20, "0.0", "100000000000000000000.0"},
               {0.1 + 0.2, "#.################", ".3"}};  // 15 digits count
  for (const auto& [value, pattern, text] : cases) {
    EXPECT_EQ(FormatDouble(value, pattern), text) << value << " " << pattern;
  }
  EXPECT_EQ(FormatSingle(2.0013F, "#.0.##0"), "2.0.013");
  EXPECT_EQ(FormatSingle(16777216.0F, "#,#.0"), "16,777,220.0");  // 7 digits count
  EXPECT_EQ(FormatText("50%", "0.0"), "50%");
  EXPECT_EQ(FormatText("", "0.0"), "");
}

}  // namespace
}  // namespace benevix
