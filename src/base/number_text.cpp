#include "base/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <limits>
#include <utility>

#include "base/decimal.h"
#include "base/runtime_error.h"
#include "base/text.h"

namespace benevix {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// The parts of a decimal number.
struct Digits {
  std::string whole;
  std::string decimals;
  int exponent = 0;
  bool any() const { return !whole.empty() || !decimals.empty(); }
};

// Nothing when the value is too large for a double.
std::optional<double> ToDouble(const Digits& digits) {
  constexpr std::array powers = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (digits.exponent == 0 && digits.whole.size() + digits.decimals.size() < powers.size()) {
    // Both are exact, so that only the quotient is rounded.
    std::int64_t number = 0;
    for (const std::string& part : {std::cref(digits.whole), std::cref(digits.decimals)}) {
      for (const char digit : part) number = number * 10 + (digit - '0');
    }
    return static_cast<double>(number) / powers[digits.decimals.size()];
  }
  const std::string text = (digits.whole.empty() ? "0" : digits.whole) + "." + digits.decimals +
                           "0e" + std::to_string(digits.exponent);
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  // Overflow or underflow: the place of the first significant digit tells which.
  const std::string all = digits.whole + digits.decimals;
  const auto first = static_cast<long>(all.find_first_not_of('0'));
  const long place = static_cast<long>(digits.whole.size()) - first + digits.exponent;
  if (place > 0) return std::nullopt;
  return 0.0;
}

// Capped far beyond the exponents of a double, so that the int cannot overflow.
void AddExponentDigit(int& exponent, char digit) {
  constexpr int limit = 100'000'000;
  if (exponent < limit) exponent = exponent * 10 + (digit - '0');
}

// -1 for a character that is not a digit of the base (up to 16).
int DigitValue(char c, int base) {
  constexpr std::string_view digits = "0123456789abcdef";
  const auto lower = static_cast<char>(LowerCaseOf(static_cast<unsigned char>(c)));
  const auto value = digits.substr(0, static_cast<std::size_t>(base)).find(lower);
  return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

// Walks over a text, leaving out the characters in `skipped`.
class Cursor {
 public:
  Cursor(std::string_view text, std::string_view skipped) : text_(text), skipped_(skipped) {
    Skip();
  }
  // NUL at the end of the text; as no number contains one, that ends every number.
  [[nodiscard]] char Peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  [[nodiscard]] bool AtEnd() const { return at_ >= text_.size(); }
  void Advance() {
    ++at_;
    Skip();
  }

 private:
  void Skip() {
    while (at_ < text_.size() && skipped_.find(text_[at_]) != std::string_view::npos) ++at_;
  }
  std::string_view text_;
  std::string_view skipped_;
  std::size_t at_ = 0;
};

// The digits after `&H` or `&O`. Up to four hexadecimal digits, or 16 bits in octal, are a signed
// 16-bit number; more, or a trailing "&", make it a signed 32-bit one. Nothing beyond 32 bits.
std::optional<double> ReadHexOrOctal(Cursor& in, int base) {
  std::uint64_t value = 0;
  int count = 0;
  for (; DigitValue(in.Peek(), base) >= 0; in.Advance(), ++count) {
    value = value * static_cast<unsigned>(base) +
            static_cast<std::uint64_t>(DigitValue(in.Peek(), base));
    if (value > 0xFFFFFFFFU) return std::nullopt;
  }
  bool is32Bit = base == 16 ? count > 4 : value > 0xFFFF;
  if (count > 0 && in.Peek() == '&') {
    is32Bit = true;
    in.Advance();
  }
  if (is32Bit) return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(value));
}

// Takes the "&" and the letter of `&H` or `&O` and gives the base. Octal needs no letter.
int TakeBase(Cursor& in) {
  in.Advance();
  const auto letter = static_cast<char>(LowerCaseOf(static_cast<unsigned char>(in.Peek())));
  if (letter == 'h' || letter == 'o') in.Advance();
  return letter == 'h' ? 16 : 8;
}

bool IsExponentMark(char c) {
  return c == 'E' || c == 'e' || c == 'D' || c == 'd';
}

void ReadDecimals(Cursor& in, Digits& digits) {
  if (in.Peek() != '.') return;
  in.Advance();
  for (; IsDigit(in.Peek()); in.Advance()) digits.decimals += in.Peek();
}

// Only with a digit behind its mark is it one.
void ReadExponent(Cursor& in, Digits& digits) {
  if (!IsExponentMark(in.Peek())) return;
  Cursor ahead = in;
  ahead.Advance();
  const bool negative = ahead.Peek() == '-';
  if (negative || ahead.Peek() == '+') ahead.Advance();
  if (!IsDigit(ahead.Peek())) return;
  for (; IsDigit(ahead.Peek()); ahead.Advance()) AddExponentDigit(digits.exponent, ahead.Peek());
  if (negative) digits.exponent = -digits.exponent;
  in = ahead;
}

}  // namespace

double Val(std::string_view text) {
  Cursor in(text, " \t\n");
  std::optional<double> value;
  if (in.Peek() == '&') {
    value = ReadHexOrOctal(in, TakeBase(in));
    if (!value) throw RuntimeError("Overflow");
    return *value;
  }
  const bool negative = in.Peek() == '-';
  if (negative || in.Peek() == '+') in.Advance();
  Digits digits;
  for (; IsDigit(in.Peek()); in.Advance()) digits.whole += in.Peek();
  ReadDecimals(in, digits);
  ReadExponent(in, digits);
  if (!digits.any()) return 0;
  // Behind a number these mark a whole one, which one with decimals is not.
  const bool saysWhole = in.Peek() == '%' || in.Peek() == '&';
  if (saysWhole && !digits.decimals.empty()) throw RuntimeError("Type mismatch");
  value = ToDouble(digits);
  if (!value) throw RuntimeError("Overflow");
  return negative ? -*value : *value;
}

namespace {

// What stands around a number's digits: blanks, a "$" on either side, and one sign, or parentheses
// that stand for the minus.
struct Around {
  bool sign = false;
  bool parenthesis = false;  // is open
  bool negative = false;

  void TakeBefore(Cursor& in) {
    for (bool dollar = false;; in.Advance()) {
      const char c = in.Peek();
      if (!sign && (c == '-' || c == '+' || c == '(')) {
        sign = true;
        parenthesis = c == '(';
        negative = c != '+';
      } else if (!TakeOther(c, dollar)) {
        return;
      }
    }
  }

  void TakeBehind(Cursor& in) {
    for (bool dollar = false;; in.Advance()) {
      const char c = in.Peek();
      if (parenthesis && c == ')') {
        parenthesis = false;
      } else if (!sign && (c == '-' || c == '+')) {
        sign = true;
        negative = c == '-';
      } else if (!TakeOther(c, dollar)) {
        return;
      }
    }
  }

 private:
  static bool TakeOther(char c, bool& dollar) {
    if (c == '$') return !std::exchange(dollar, true);
    return c == ' ' || c == '\t';
  }
};

// The digits of a number that is a whole text. Commas stand between the digits of its whole part
// and anywhere among its decimals; the point may be doubled when no decimals follow.
Digits ReadGroupedDigits(Cursor& in) {
  Digits digits;
  while (IsDigit(in.Peek())) {
    digits.whole += in.Peek();
    in.Advance();
    Cursor ahead = in;
    while (ahead.Peek() == ',') ahead.Advance();
    if (IsDigit(ahead.Peek())) in = ahead;
  }
  if (in.Peek() == '.') {
    in.Advance();
    for (; IsDigit(in.Peek()) || in.Peek() == ','; in.Advance()) {
      if (in.Peek() != ',') digits.decimals += in.Peek();
    }
    if (digits.decimals.empty() && in.Peek() == '.') in.Advance();
  }
  ReadExponent(in, digits);
  return digits;
}

// `&H` or `&O` and their digits, the whole text.
std::optional<double> ParseHexOrOctal(std::string_view text) {
  Cursor in(text, "");
  const int base = TakeBase(in);
  if (DigitValue(in.Peek(), base) < 0) return std::nullopt;
  const auto value = ReadHexOrOctal(in, base);
  return in.AtEnd() ? value : std::nullopt;
}

}  // namespace

std::optional<double> ParseNumber(std::string_view text) {
  const auto blank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  if (text.starts_with('&')) return ParseHexOrOctal(text);

  Cursor in(text, "");
  Around around;
  around.TakeBefore(in);
  const Digits digits = ReadGroupedDigits(in);
  around.TakeBehind(in);
  if (!digits.any() || around.parenthesis || !in.AtEnd()) return std::nullopt;
  auto value = ToDouble(digits);
  if (value && around.negative) value = -*value;
  return value;
}

bool IsNumeric(std::string_view text) {
  return ParseNumber(text).has_value();
}

bool TextToBoolean(std::string_view text) {
  const std::string upper = UpperCase(text);
  if (upper == "TRUE") return true;
  if (upper == "FALSE") return false;
  const auto value = ParseNumber(text);
  if (!value) throw RuntimeError("Type mismatch");
  return *value != 0;
}

namespace {

double RoundHalfEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <class Integer>
Integer ToInteger(double value) {
  const double rounded = RoundHalfEven(value);
  if (!(rounded >= std::numeric_limits<Integer>::min() &&
        rounded <= std::numeric_limits<Integer>::max())) {
    throw RuntimeError("Overflow");
  }
  return static_cast<Integer>(rounded);
}

std::string ToText(double value, int significant) {
  const Decimal decimal = Decimal::FromDouble(value, significant);
  if (decimal.digits.empty()) return "0";
  const std::string sign = decimal.negative ? "-" : "";
  const int count = static_cast<int>(decimal.digits.size());
  const int exponent = decimal.exponent - 1;
  const int decimals = count - decimal.exponent;
  if (exponent >= significant || (exponent < 0 && decimals > significant)) {
    std::string text = sign + decimal.digits.substr(0, 1);
    if (count > 1) text += "." + decimal.digits.substr(1);
    const std::string power = std::to_string(std::abs(exponent));
    return text + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
  }
  if (decimal.exponent <= 0) {
    return sign + "0." + std::string(static_cast<std::size_t>(-decimal.exponent), '0') +
           decimal.digits;
  }
  const auto whole = static_cast<std::size_t>(decimal.exponent);
  if (decimal.digits.size() <= whole) {
    return sign + decimal.digits + std::string(whole - decimal.digits.size(), '0');
  }
  return sign + decimal.digits.substr(0, whole) + "." + decimal.digits.substr(whole);
}

}  // namespace

std::int16_t ToInt16(double value) {
  return ToInteger<std::int16_t>(value);
}
std::int32_t ToInt32(double value) {
  return ToInteger<std::int32_t>(value);
}

float ToSingle(double value) {
  if (!(std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max()))) {
    throw RuntimeError("Overflow");
  }
  return static_cast<float>(value);
}

std::string DoubleToText(double value) {
  return ToText(value, 15);
}
std::string SingleToText(float value) {
  return ToText(static_cast<double>(value), 7);
}

}  // namespace benevix
