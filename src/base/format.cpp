#include "base/format.h"

#include "base/decimal.h"
#include "base/number_text.h"

namespace benevix {
namespace {

struct Pattern {
  std::size_t minWhole = 0;
  std::size_t decimalPlaces = 0;
  std::size_t minDecimals = 0;  // places up to the last `0`; a `#` before it counts as `0`
  bool hasPoint = false;
  bool grouped = false;
  std::string_view afterPoint;  // digit places and literal text
};

Pattern Parse(std::string_view text) {
  Pattern pattern;
  const auto point = text.find('.');
  pattern.hasPoint = point != std::string_view::npos;
  bool placeSeen = false;
  bool commaSeen = false;  // after a place; a place must follow too
  for (const char c : text) {
    if (c == ',') commaSeen = placeSeen;
    if (c != '0' && c != '#') continue;
    pattern.grouped = pattern.grouped || commaSeen;
    placeSeen = true;
  }
  for (const char c : text.substr(0, point)) {
    if (c == '0' || (c == '#' && pattern.minWhole > 0)) ++pattern.minWhole;
  }
  if (!pattern.hasPoint) return pattern;
  pattern.afterPoint = text.substr(point + 1);
  for (const char c : pattern.afterPoint) {
    if (c != '0' && c != '#') continue;
    ++pattern.decimalPlaces;
    if (c == '0') pattern.minDecimals = pattern.decimalPlaces;
  }
  return pattern;
}

std::string Group(const std::string& digits) {
  std::string grouped;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) grouped += ',';
    grouped += digits[i];
  }
  return grouped;
}

std::string Apply(Decimal value, std::string_view text) {
  const Pattern pattern = Parse(text);
  value.RoundTo(static_cast<int>(pattern.decimalPlaces));
  const auto digitAt = [&](int place) {  // 0 is the first digit after the point
    const int index = value.exponent + place;
    const bool exists = index >= 0 && index < static_cast<int>(value.digits.size());
    return exists ? value.digits[static_cast<std::size_t>(index)] : '0';
  };
  std::string whole;
  for (int place = -value.exponent; place < 0; ++place) whole += digitAt(place);
  if (whole.size() < pattern.minWhole) whole.insert(0, pattern.minWhole - whole.size(), '0');

  std::size_t decimals = pattern.minDecimals;
  for (std::size_t i = decimals; i < pattern.decimalPlaces; ++i) {
    if (digitAt(static_cast<int>(i)) != '0') decimals = i + 1;
  }
  std::string result = value.negative ? "-" : "";
  result += pattern.grouped ? Group(whole) : whole;
  if (pattern.hasPoint) result += '.';
  std::size_t place = 0;
  for (const char c : pattern.afterPoint) {
    if (c == ',') continue;
    if (c != '0' && c != '#') {
      result += c;
    } else if (place < decimals) {
      result += digitAt(static_cast<int>(place++));
    }
  }
  return result;
}

}  // namespace

std::string Format(Currency value, std::string_view pattern) {
  return Apply(Decimal::FromCurrency(value), pattern);
}

std::string FormatDouble(double value, std::string_view pattern) {
  return Apply(Decimal::FromDouble(value, 15), pattern);
}

std::string FormatSingle(float value, std::string_view pattern) {
  return Apply(Decimal::FromDouble(static_cast<double>(value), 7), pattern);
}

std::string FormatText(std::string_view text, std::string_view pattern) {
  const auto value = ParseNumber(text);
  return value ? FormatDouble(*value, pattern) : std::string(text);
}

}  // namespace benevix
