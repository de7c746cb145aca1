#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace benevix {

// An amount of money: a 64-bit count of ten-thousandths of a dollar. Sums, differences and
// products are exact or raise RuntimeError ("Overflow"); money never wraps.
class Currency {
 public:
  static constexpr std::int64_t kScale = 10000;

  constexpr Currency() = default;
  static constexpr Currency FromUnits(std::int64_t units) { return Currency(units); }
  static constexpr Currency FromWhole(std::int32_t whole) { return Currency(whole * kScale); }

  // The exact value of `value` x 10,000, halves to even. Raises RuntimeError when it is not finite
  // or out of range.
  static Currency FromDouble(double value);

  // The leading number of a text; no number gives 0.
  static Currency FromText(std::string_view text);

  [[nodiscard]] constexpr std::int64_t Units() const { return units_; }
  [[nodiscard]] double ToDouble() const;

  // The shortest plain decimal text: 0, -1.5, 0.0009, 100.5.
  [[nodiscard]] std::string ToText() const;

  friend Currency operator+(Currency a, Currency b);
  friend Currency operator-(Currency a, Currency b);
  Currency& operator+=(Currency other) { return *this = *this + other; }
  Currency& operator-=(Currency other) { return *this = *this - other; }
  friend constexpr auto operator<=>(Currency, Currency) = default;

 private:
  explicit constexpr Currency(std::int64_t units) : units_(units) {}

  std::int64_t units_ = 0;
};

// The exact product, halves of a ten-thousandth to even.
Currency Product(Currency a, Currency b);

}  // namespace benevix
