#include "base/decimal.h"

#include <array>
#include <charconv>
#include <cmath>

#include "base/runtime_error.h"

namespace benevix {
namespace {

void Normalize(Decimal& decimal) {
  const auto first = decimal.digits.find_first_not_of('0');
  if (first == std::string::npos) {
    decimal.digits.clear();
    decimal.exponent = 0;
    return;
  }
  decimal.digits.erase(0, first);
  decimal.exponent -= static_cast<int>(first);
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
}

}  // namespace

void Decimal::RoundTo(int count) {
  const int keep = exponent + count;
  if (keep >= static_cast<int>(digits.size())) return;
  const bool up = keep >= 0 && digits[static_cast<std::size_t>(keep)] >= '5';
  digits.erase(keep > 0 ? static_cast<std::size_t>(keep) : 0);
  if (up) {
    std::size_t i = digits.size();
    while (i > 0 && digits[i - 1] == '9') digits[--i] = '0';
    if (i > 0) {
      ++digits[i - 1];
    } else {
      digits.insert(0, 1, '1');
      ++exponent;
    }
  }
  Normalize(*this);
}

Decimal Decimal::FromDouble(double value, int significant) {
  if (!std::isfinite(value)) throw RuntimeError("Overflow");
  // Any double has at most 767 significant decimal digits.
  std::array<char, 800> buffer{};
  const auto* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                        std::fabs(value), std::chars_format::scientific, 766)
                              .ptr;
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const auto e = text.find('e');
  Decimal decimal;
  decimal.negative = value < 0;
  decimal.digits = text[0];
  decimal.digits += text.substr(2, e - 2);
  const char* exponentText = text.data() + e + (text[e + 1] == '+' ? 2 : 1);
  std::from_chars(exponentText, end, decimal.exponent);
  ++decimal.exponent;
  Normalize(decimal);
  decimal.RoundTo(significant - decimal.exponent);
  return decimal;
}

Decimal Decimal::FromCurrency(Currency value) {
  std::string text = value.ToText();
  Decimal decimal;
  decimal.negative = text[0] == '-';
  if (decimal.negative) text.erase(0, 1);
  const auto point = text.find('.');
  decimal.exponent = static_cast<int>(point == std::string::npos ? text.size() : point);
  if (point != std::string::npos) text.erase(point, 1);
  decimal.digits = text;
  Normalize(decimal);
  return decimal;
}

}  // namespace benevix
