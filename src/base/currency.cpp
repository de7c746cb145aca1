#include "base/currency.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "base/number_text.h"
#include "base/runtime_error.h"

namespace benevix {
namespace {

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

[[noreturn]] void RaiseOverflow() {
  throw RuntimeError("Overflow");
}

// Not __int128, which is a compiler extension.
struct UInt128 {
  std::uint64_t high = 0;
  std::uint64_t low = 0;
};

UInt128 Multiply(std::uint64_t a, std::uint64_t b) {
  constexpr std::uint64_t mask = 0xFFFFFFFF;
  const std::uint64_t a0 = a & mask, a1 = a >> 32, b0 = b & mask, b1 = b >> 32;
  const std::uint64_t low = a0 * b0;
  const std::uint64_t middle1 = a1 * b0 + (low >> 32);
  const std::uint64_t middle2 = a0 * b1 + (middle1 & mask);
  return {a1 * b1 + (middle1 >> 32) + (middle2 >> 32), (middle2 << 32) | (low & mask)};
}

// Long division in base 2^32; `divisor` is below 2^32.
UInt128 Divide(UInt128 value, std::uint64_t divisor, std::uint64_t& remainder) {
  const std::uint64_t limbs[4] = {value.high >> 32, value.high & 0xFFFFFFFF, value.low >> 32,
                                  value.low & 0xFFFFFFFF};
  std::uint64_t quotient[4];
  remainder = 0;
  for (int i = 0; i < 4; ++i) {
    const std::uint64_t part = (remainder << 32) | limbs[i];
    quotient[i] = part / divisor;
    remainder = part % divisor;
  }
  return {(quotient[0] << 32) | quotient[1], (quotient[2] << 32) | quotient[3]};
}

// value / 2^count, rounded half to even; `count` is 1 to 127.
UInt128 ShiftRight(UInt128 value, int count) {
  const auto bit = [&](int i) {
    return i < 64 ? (value.low >> i) & 1 : (value.high >> (i - 64)) & 1;
  };
  const bool half = bit(count - 1) != 0;
  bool rest = false;
  for (int i = 0; i < count - 1 && !rest; ++i) rest = bit(i) != 0;
  UInt128 result;
  if (count < 64) {
    result = {value.high >> count, (value.low >> count) | (value.high << (64 - count))};
  } else {
    result = {0, count == 64 ? value.high : value.high >> (count - 64)};
  }
  if (half && (rest || (result.low & 1) != 0) && ++result.low == 0) ++result.high;
  return result;
}

std::int64_t ToSigned(UInt128 magnitude, bool negative) {
  const std::uint64_t limit = static_cast<std::uint64_t>(kMax) + (negative ? 1 : 0);
  if (magnitude.high != 0 || magnitude.low > limit) RaiseOverflow();
  if (!negative) return static_cast<std::int64_t>(magnitude.low);
  return magnitude.low > static_cast<std::uint64_t>(kMax)
             ? kMin
             : -static_cast<std::int64_t>(magnitude.low);
}

std::uint64_t Magnitude(std::int64_t value) {
  return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

// The units of a plain amount such as "1250.50"; nothing for any other text. A double of so few
// digits is so close to the amount that it would be rounded to the same.
std::optional<std::int64_t> PlainUnits(std::string_view text) {
  constexpr std::size_t mostDigits = 11, mostDecimals = 4;
  const std::size_t point = std::min(text.find('.'), text.size());
  const std::size_t decimals = point < text.size() ? text.size() - point - 1 : 0;
  if (point > mostDigits || decimals > mostDecimals) return std::nullopt;
  std::int64_t units = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i == point) continue;
    if (text[i] < '0' || text[i] > '9') return std::nullopt;
    units = units * 10 + (text[i] - '0');
  }
  for (std::size_t i = decimals; i < mostDecimals; ++i) units *= 10;
  return units;
}

}  // namespace

Currency Currency::FromDouble(double value) {
  if (!std::isfinite(value)) RaiseOverflow();
  int exponent = 0;
  const double fraction = std::frexp(std::fabs(value), &exponent);
  if (exponent > 64) RaiseOverflow();
  const auto mantissa = static_cast<std::uint64_t>(std::ldexp(fraction, 53));
  UInt128 scaled = Multiply(mantissa, static_cast<std::uint64_t>(kScale));
  const int shift = 53 - exponent;
  if (shift >= 128) return Currency();
  if (shift > 0) {
    scaled = ShiftRight(scaled, shift);
  } else {
    scaled = Multiply(mantissa << -shift, static_cast<std::uint64_t>(kScale));
  }
  return Currency(ToSigned(scaled, std::signbit(value)));
}

Currency Currency::FromText(std::string_view text) {
  const auto units = PlainUnits(text);
  return units ? FromUnits(*units) : FromDouble(Val(text));
}

double Currency::ToDouble() const {
  return static_cast<double>(units_) / static_cast<double>(kScale);
}

std::string Currency::ToText() const {
  const std::uint64_t magnitude = Magnitude(units_);
  std::string text = units_ < 0 ? "-" : "";
  text += std::to_string(magnitude / kScale);
  std::string decimals = std::to_string(kScale + static_cast<std::int64_t>(magnitude % kScale));
  decimals[0] = '.';
  const auto last = decimals.find_last_not_of('0');
  if (last != 0) text += decimals.substr(0, last + 1);
  return text;
}

Currency operator+(Currency a, Currency b) {
  if (b.units_ > 0 ? a.units_ > kMax - b.units_ : a.units_ < kMin - b.units_) RaiseOverflow();
  return Currency(a.units_ + b.units_);
}

Currency operator-(Currency a, Currency b) {
  if (b.units_ < 0 ? a.units_ > kMax + b.units_ : a.units_ < kMin + b.units_) RaiseOverflow();
  return Currency(a.units_ - b.units_);
}

Currency Product(Currency a, Currency b) {
  const UInt128 product = Multiply(Magnitude(a.Units()), Magnitude(b.Units()));
  std::uint64_t remainder = 0;
  UInt128 quotient = Divide(product, static_cast<std::uint64_t>(Currency::kScale), remainder);
  constexpr auto half = static_cast<std::uint64_t>(Currency::kScale / 2);
  if (remainder > half || (remainder == half && (quotient.low & 1) != 0)) {
    if (++quotient.low == 0) ++quotient.high;
  }
  return Currency::FromUnits(ToSigned(quotient, (a.Units() < 0) != (b.Units() < 0)));
}

}  // namespace benevix
