#include <cmath>
#include <limits>

#include "base/format.h"
#include "base/lines.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "session/typed_amount.h"
#include "targets.h"

namespace benevix {
namespace {

void CheckDouble(double value, std::string_view pattern) {
  Require(std::isfinite(value), "a number is finite");
  FormatDouble(value, pattern);
  const std::string text = DoubleToText(value);
  if (std::abs(value) > 1e308) return;  // 15 digits of the largest numbers are beyond them
  Require(ParseNumber(text).has_value(), "a number's text is a number");
  Require(DoubleToText(*ParseNumber(text)) == text, "and the same one");
}

void CheckCurrency(Currency value, std::string_view pattern) {
  Require(Currency::FromText(value.ToText()) == value, "an amount is read as it is written");
  Format(value, pattern);
  constexpr std::int64_t exact = std::int64_t{1} << 50;
  if (value.Units() > exact || value.Units() < -exact) return;
  const auto shown = ParseNumber(Format(value, kSumPattern));
  Require(shown && std::abs(*shown - value.ToDouble()) < 0.00501, "and shown to the cent");
}

// What raises is refused, which is all that it needs.
template <class F>
void Try(F check) {
  try {
    check();
  } catch (const RuntimeError&) {
  }
}

}  // namespace

void CheckNumber(std::string_view input) {
  std::string_view pattern = input;
  const std::string text(CutField(pattern, '\n'));
  Try([&] { CheckDouble(Val(text), pattern); });
  Try([&] { CheckCurrency(Currency::FromText(text), pattern); });
  Try([&] { SingleToText(ToSingle(Val(text))); });
  Try([&] { ToInt16(Val(text)); });
  Try([&] { TextToBoolean(text); });
  Try([&] { CheckDouble(ParseNumber(text).value_or(0), pattern); });
  Try([&] { FormatText(text, pattern); });
  const TypedAmount amount = ReadAmount(text);
  Require(!amount.number || std::abs(std::trunc(*amount.number)) <= 0x1p31,
          "whole part in 32 bits");
  HasDecimalComma(text);
  Require(FromUtf8(ToUtf8(input)) == input, "the code page is there in UTF-8");
  FromUtf8(input);
}

}  // namespace benevix
