#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace benevix {

// An amount of money: a signed 64-bit count of units of 1/10,000 dollar. Arithmetic never wraps: it
// raises RuntimeError ("Overflow") when the result is out of range.
class Currency {
 public:
  static constexpr std::int64_t kScale = 10000;

  constexpr Currency() = default;
  static constexpr Currency FromUnits(std::int64_t units) { return Currency(units); }
  static constexpr Currency FromWhole(std::int32_t whole) { return Currency(whole * kScale); }

  // The exact value of `value` x 10,000, rounded half to even. Raises RuntimeError ("Overflow")
  // when it is not finite or out of range.
  static Currency FromDouble(double value);

  // The leading number of a text, as Val reads it; 0 without one. Raises as FromDouble does.
  static Currency FromText(std::string_view text);

  [[nodiscard]] constexpr std::int64_t Units() const { return units_; }
  [[nodiscard]] double ToDouble() const;

  // The shortest decimal text without an exponent: 0, -1.5, 0.0009, 100.5.
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

// The exact product, rounded half to even to a unit. Raises RuntimeError ("Overflow").
Currency Product(Currency a, Currency b);

}  // namespace benevix
