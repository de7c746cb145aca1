#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace benevix {

// The number that a text begins with: blanks, tabs and line feeds are skipped, `&H` and `&O` are
// read, the first character that does not fit ends it; no digits give 0. Raises RuntimeError when
// the number is beyond a double.
double Val(std::string_view text);

// The number that the whole text denotes: signs before or after, parentheses for negative, one "$",
// commas between digits, exponents, `&H` and `&O`. Nothing when the text is not such a number.
std::optional<double> ParseNumber(std::string_view text);
bool IsNumeric(std::string_view text);

// "True" or "False" in any case, otherwise a number. Raises RuntimeError for anything else.
bool TextToBoolean(std::string_view text);

// Rounded half to even; RuntimeError beyond 16 or 32 bits.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);
// Rounded to the nearest single; RuntimeError beyond its range.
float ToSingle(double value);

// 15 (7) significant digits, plain where they suffice, otherwise scientific (1E+15).
std::string DoubleToText(double value);
std::string SingleToText(float value);

}  // namespace benevix
