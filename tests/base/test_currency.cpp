#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "../text_cases.h"
#include "base/currency.h"
#include "base/runtime_error.h"

namespace benevix {
namespace {

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

TEST(Currency, RoundsTheExactDoubleHalfToEven) {
  // As a double, 0.00005 is just above the half and 0.00015 just below; 0.03125 and 0.09375 are
  // exact halves.
  for (const auto& [value, text] :
       Cases({"-0.0 => 0", "-1.5 => -1.5", "100.5 => 100.5", "0.0009 => 0.0009",
              "0.00005 => 0.0001", "0.00015 => 0.0001", "0.03125 => 0.0312", "0.09375 => 0.0938",
              "-0.09375 => -0.0938", "5e-324 => 0", "922337203685477.5 => 922337203685477.5",
              "-922337203685477.5 => -922337203685477.5"})) {
    EXPECT_EQ(Currency::FromDouble(std::strtod(value.c_str(), nullptr)).ToText(), text);
  }
  for (const double value :
       {922337203685477.625, -922337203685477.625, 1e18, 1e300, std::nan(""), -HUGE_VAL}) {
    EXPECT_THROW(Currency::FromDouble(value), RuntimeError) << value;
  }
}

// snprintf writes the exact decimal expansion of a double.
TEST(Currency, AgreesWithSnprintf) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 20000; ++i) {
    const auto mantissa = static_cast<double>(static_cast<std::int64_t>(random()));
    const double value = std::ldexp(mantissa, -14 - static_cast<int>(random() % 80));
    char text[1200];
    std::snprintf(text, sizeof text, "%.1100f", std::fabs(value));
    std::string digits = text;
    digits.erase(digits.find('.'), 1);
    const std::string rest = digits.substr(digits.size() - 1096);
    std::int64_t units = std::stoll(digits.substr(0, digits.size() - 1096));
    const int half = rest.compare("5" + std::string(1095, '0'));
    if (half > 0 || (half == 0 && units % 2 != 0)) ++units;
    ASSERT_EQ(Currency::FromDouble(value).Units(), value < 0 ? -units : units) << value;
  }
}

#ifdef __SIZEOF_INT128__
__extension__ typedef __int128 Int128;

TEST(Currency, MultipliesExactlyOrOverflows) {
  std::mt19937_64 random(2);
  int overflows = 0;
  for (int i = 0; i < 50000; ++i) {
    const auto a = static_cast<std::int64_t>(random()) >> (random() % 63);
    // Multiples of 5000 give products that end in exactly one half.
    const auto b = i % 2 == 0 ? static_cast<std::int64_t>(random()) >> (random() % 63)
                              : static_cast<std::int64_t>(random() % 99) * 5000;
    const Int128 product = static_cast<Int128>(a) * b;
    Int128 rounded = product / 10000;
    const auto rest = static_cast<int>(product % 10000);
    if (std::abs(rest) > 5000 || (std::abs(rest) == 5000 && rounded % 2 != 0)) {
      rounded += product < 0 ? -1 : 1;
    }
    const auto multiply = [&] { return Product(Currency::FromUnits(a), Currency::FromUnits(b)); };
    if (rounded > kMax || rounded < kMin) {
      ++overflows;
      EXPECT_THROW(multiply(), RuntimeError);
    } else {
      ASSERT_EQ(multiply().Units(), static_cast<std::int64_t>(rounded)) << a << " x " << b;
    }
  }
  EXPECT_GT(overflows, 100);
}
#endif

TEST(Currency, NeverWraps) {
  const Currency max = Currency::FromUnits(kMax), min = Currency::FromUnits(kMin);
  const Currency unit = Currency::FromUnits(1), zero;
  EXPECT_EQ(max.ToText() + min.ToText(), "922337203685477.5807-922337203685477.5808");
  EXPECT_EQ(max + min, zero - unit);
  EXPECT_EQ(min - min, zero);
  EXPECT_THROW(max + unit, RuntimeError);
  EXPECT_THROW(min - unit, RuntimeError);
  EXPECT_THROW(zero - min, RuntimeError);
  EXPECT_EQ(Currency::FromText("1,000.00"), Currency::FromWhole(1));
  EXPECT_THROW(Currency::FromText("922337203685478"), RuntimeError);
}

}  // namespace
}  // namespace benevix
