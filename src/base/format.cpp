#include "base/format.h"

#include "base/decimal.h"
#include "base/number_text.h"

namespace benevix {
namespace {

struct Pattern {
  std::size_t forcedWhole = 0;     // digits before the point that are always written
  std::size_t decimals = 0;        // digit places after the point
  std::size_t forcedDecimals = 0;  // of these, up to the last `0`
  bool hasPoint = false;
  bool grouped = false;
  std::string_view after;  // what stands after the point, places and literal text
};

Pattern Read(std::string_view text) {
  Pattern pattern;
  const auto point = text.find('.');
  pattern.hasPoint = point != std::string_view::npos;
  bool comma = false;
  bool places = false;
  for (const char c : text) {
    if (c == ',') comma = places;
    if (c != '0' && c != '#') continue;
    pattern.grouped = pattern.grouped || comma;
    places = true;
  }
  for (const char c : text.substr(0, point)) {
    if (c == '0' || (c == '#' && pattern.forcedWhole > 0)) ++pattern.forcedWhole;
  }
  if (!pattern.hasPoint) return pattern;
  pattern.after = text.substr(point + 1);
  for (const char c : pattern.after) {
    if (c != '0' && c != '#') continue;
    ++pattern.decimals;
    if (c == '0') pattern.forcedDecimals = pattern.decimals;
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
  const Pattern pattern = Read(text);
  value.RoundTo(static_cast<int>(pattern.decimals));
  const auto digitAt = [&](int place) {  // 0 is the first digit after the point
    const int index = value.exponent + place;
    const bool within = index >= 0 && index < static_cast<int>(value.digits.size());
    return within ? value.digits[static_cast<std::size_t>(index)] : '0';
  };
  std::string whole;
  for (int place = -value.exponent; place < 0; ++place) whole += digitAt(place);
  if (whole.size() < pattern.forcedWhole) whole.insert(0, pattern.forcedWhole - whole.size(), '0');

  std::size_t shown = pattern.forcedDecimals;
  for (std::size_t i = shown; i < pattern.decimals; ++i) {
    if (digitAt(static_cast<int>(i)) != '0') shown = i + 1;
  }
  std::string result = value.negative ? "-" : "";
  result += pattern.grouped ? Group(whole) : whole;
  if (pattern.hasPoint) result += '.';
  std::size_t place = 0;
  for (const char c : pattern.after) {
    if (c == ',') continue;
    if (c != '0' && c != '#') {
      result += c;
    } else if (place < shown) {
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
