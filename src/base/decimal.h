#pragma once

#include <string>

#include "base/currency.h"

namespace benevix {

// A number as its decimal digits: 0.d1d2d3... x 10^exponent, no zero first or last; zero has no
// digits and exponent 0.
struct Decimal {
  bool negative = false;
  std::string digits;
  int exponent = 0;

  // The exact digits, rounded half away from zero to `significant` of them. Raises RuntimeError
  // when the value is not finite.
  static Decimal FromDouble(double value, int significant);
  static Decimal FromCurrency(Currency value);

  // Rounds half away from zero to `count` digits after the point (may be negative).
  void RoundTo(int count);
};

}  // namespace benevix
