#pragma once

#include <string>

#include "base/currency.h"

namespace benevix {

// A decimal number, 0.d1d2d3... x 10^exponent. `digits` has no leading or trailing zeros; for zero
// it is empty and the exponent 0.
struct Decimal {
  bool negative = false;
  std::string digits;
  int exponent = 0;

  // The exact value, rounded half away from zero to `significant` digits. Raises RuntimeError
  // ("Overflow") when it is not finite.
  static Decimal FromDouble(double value, int significant);
  static Decimal FromCurrency(Currency value);

  // Rounds half away from zero to `count` digits after the point; -2 rounds to hundreds.
  void RoundTo(int count);
};

}  // namespace benevix
