#include "base/number_text.h"

#include <charconv>
#include <cmath>
#include <limits>

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

// 16 for the H of `&H`, 8 for the O of `&O`, otherwise 0.
int BaseOf(char c) {
  if (c == 'H' || c == 'h') return 16;
  return c == 'O' || c == 'o' ? 8 : 0;
}

bool IsExponentMark(char c) {
  return c == 'E' || c == 'e' || c == 'D' || c == 'd';
}

void ReadDecimalsAndExponent(Cursor& in, Digits& digits) {
  if (in.Peek() == '.') {
    in.Advance();
    for (; IsDigit(in.Peek()); in.Advance()) digits.decimals += in.Peek();
  }
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
    in.Advance();
    const int base = BaseOf(in.Peek());
    if (base == 0) return 0;
    in.Advance();
    value = ReadHexOrOctal(in, base);
    if (!value) throw RuntimeError("Overflow");
    return *value;
  }
  const bool negative = in.Peek() == '-';
  if (negative || in.Peek() == '+') in.Advance();
  Digits digits;
  for (; IsDigit(in.Peek()); in.Advance()) digits.whole += in.Peek();
  ReadDecimalsAndExponent(in, digits);
  if (!digits.any()) return 0;
  value = ToDouble(digits);
  if (!value) throw RuntimeError("Overflow");
  return negative ? -*value : *value;
}

std::optional<double> ParseNumber(std::string_view text) {
  const auto blank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);

  bool negative = false;
  bool signSeen = false;
  bool parenthesis = false;
  bool dollar = false;
  for (; !text.empty(); text.remove_prefix(1)) {
    const char c = text.front();
    if (!signSeen && (c == '-' || c == '+' || c == '(')) {
      signSeen = true;
      parenthesis = c == '(';
      negative = c != '+';
    } else if (!dollar && c == '$') {
      dollar = true;
    } else {
      break;
    }
  }
  Cursor in(text, "");
  std::optional<double> value;
  if (in.Peek() == '&' && !signSeen && !dollar) {
    in.Advance();
    const int base = BaseOf(in.Peek());
    if (base == 0) return std::nullopt;
    in.Advance();
    if (DigitValue(in.Peek(), base) < 0) return std::nullopt;
    value = ReadHexOrOctal(in, base);
    return in.AtEnd() ? value : std::nullopt;
  }
  Digits digits;
  for (bool comma = false; IsDigit(in.Peek()) || in.Peek() == ',' || comma; in.Advance()) {
    if (comma && !IsDigit(in.Peek())) return std::nullopt;
    comma = in.Peek() == ',';
    if (comma && digits.whole.empty()) return std::nullopt;
    if (!comma) digits.whole += in.Peek();
  }
  ReadDecimalsAndExponent(in, digits);
  if (!digits.any()) return std::nullopt;
  if (parenthesis) {
    if (in.Peek() != ')') return std::nullopt;
    in.Advance();
  } else if (!signSeen && (in.Peek() == '-' || in.Peek() == '+')) {
    negative = in.Peek() == '-';
    in.Advance();
  }
  if (!in.AtEnd()) return std::nullopt;
  value = ToDouble(digits);
  if (value && negative) value = -*value;
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
