#include <cmath>
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "base/currency.h"
#include "base/runtime_error.h"

namespace benevix {
namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

std::string FromDouble(double value) {
  try {
    return Currency::FromDouble(value).ToText();
  } catch (const RuntimeError&) {
    return "overflow";
  }
}

TEST(Currency, TakesTheExactDoubleHalvesToEven) {
  const struct {
    double value;
    const char* text;
  } cases[] = {{0, "0"},
               {-0.0, "0"},
               {1, "1"},
               {-1.5, "-1.5"},
               {100.5, "100.5"},
               {0.0009, "0.0009"},
               {0.00005, "0.0001"},  // a little above the half
               {0.00015, "0.0001"},  // a little below
               {0.03125, "0.0312"},  // the half itself
               {0.09375, "0.0938"},
               {-0.09375, "-0.0938"},
               {5e-324, "0"},
               {922337203685477.5, "922337203685477.5"},
               {922337203685477.625, "overflow"},
               {-922337203685477.5, "-922337203685477.5"},
               {-922337203685477.625, "overflow"},
               {1e300, "overflow"},
               {std::nan(""), "overflow"},
               {-INFINITY, "overflow"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(FromDouble(value), text) << value;
}

// The ten-thousandths of a double by its exact decimal expansion, which the C library prints.
std::int64_t UnitsByExpansion(double value) {
  char text[1200];
  std::snprintf(text, sizeof text, "%.1100f", std::fabs(value));
  char* const point = std::strchr(text, '.');
  const std::string rest = point + 5;
  std::string digits(text, point);
  digits.append(point + 1, 4);
  std::int64_t units = std::stoll(digits);
  const int half = rest.compare("5" + std::string(rest.size() - 1, '0'));
  if (half > 0 || (half == 0 && units % 2 != 0)) ++units;
  return value < 0 ? -units : units;
}

TEST(Currency, AgreesWithTheDecimalExpansionOfAnyDouble) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 20000; ++i) {
    const auto mantissa = static_cast<double>(static_cast<std::int64_t>(random()));
    const double value = std::ldexp(mantissa, -14 - static_cast<int>(random() % 80));
    ASSERT_EQ(Currency::FromDouble(value).Units(), UnitsByExpansion(value)) << value;
  }
}

#ifdef __SIZEOF_INT128__
__extension__ typedef __int128 Int128;

TEST(Currency, MultipliesExactlyOrOverflows) {
  std::mt19937_64 random(2);
  int overflows = 0;
  for (int i = 0; i < 50000; ++i) {
    const auto a = static_cast<std::int64_t>(random()) >> (random() % 63);
    // Every other one a multiple of 5000, for products that end in a half.
    const auto b = i % 2 == 0 ? static_cast<std::int64_t>(random()) >> (random() % 63)
                              : static_cast<std::int64_t>(random() % 99) * 5000;
    const Int128 product = static_cast<Int128>(a) * b;
    const Int128 magnitude = product < 0 ? -product : product;
    Int128 rounded = magnitude / 10000;
    const auto rest = static_cast<int>(magnitude % 10000);
    if (rest > 5000 || (rest == 5000 && rounded % 2 != 0)) ++rounded;
    if (product < 0) rounded = -rounded;
    const auto multiply = [&] { return Product(Currency::FromUnits(a), Currency::FromUnits(b)); };
    if (rounded > kMost || rounded < -static_cast<Int128>(kMost) - 1) {
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
  const Currency most = Currency::FromUnits(kMost), least = Currency::FromUnits(-kMost - 1);
  const Currency unit = Currency::FromUnits(1), none;
  EXPECT_EQ(most.ToText(), "922337203685477.5807");
  EXPECT_EQ(least.ToText(), "-922337203685477.5808");
  EXPECT_EQ(most + least, none - unit);
  EXPECT_EQ(least - least, none);
  EXPECT_THROW(most + unit, RuntimeError);
  EXPECT_THROW(least - unit, RuntimeError);
  EXPECT_THROW(none - least, RuntimeError);
  EXPECT_THROW(least + least, RuntimeError);
  EXPECT_EQ(Currency::FromText("1,000.00"), Currency::FromWhole(1));
  EXPECT_THROW(Currency::FromText("922337203685478"), RuntimeError);
}

}  // namespace
}  // namespace benevix
