#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace benevix {

// The number at the beginning of a text, up to the first character that cannot belong to it; 0
// without digits. Blanks, tabs and line feeds are skipped, even between digits; `&H` begins a
// hexadecimal number, `&O` or "&" alone an octal one. Raises RuntimeError: "Overflow" when it is
// too large, "Type mismatch" when a "%" or "&", the mark of a whole number, follows decimals.
double Val(std::string_view text);

// The number that is the whole text; nothing for any other text. Allowed are, with blanks and tabs
// around them, a sign before or after, parentheses for negative, a "$" before and after, commas
// between digits, an exponent; also `&H`, `&O` and "&" for octal.
std::optional<double> ParseNumber(std::string_view text);
bool IsNumeric(std::string_view text);

// "True" or "False" in any case, or a number, of which only 0 is false. Raises RuntimeError ("Type
// mismatch") for any other text.
bool TextToBoolean(std::string_view text);

// Rounded half to even. Raises RuntimeError ("Overflow") when out of range, as ToSingle does.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);
float ToSingle(double value);

// The value with 15 (7) significant digits, rounded half away from zero; in scientific notation
// (1E+15) when 15 (7) digits before or after the point do not suffice. Raises RuntimeError
// ("Overflow") when it is not finite.
std::string DoubleToText(double value);
std::string SingleToText(float value);

}  // namespace benevix
