#pragma once

#include <string>
#include <string_view>

#include "base/currency.h"

namespace benevix {

// Formats a number by a pattern of digit places: `0` always writes a digit, `#` only a significant
// one. The value (a double to 15, a single to 7 significant digits) is rounded half away from zero
// to the places after the point. The point is always written, a comma between places groups by
// thousands, a second point is literal text. Raises RuntimeError for a value that is not finite.
std::string Format(Currency value, std::string_view pattern);
std::string FormatDouble(double value, std::string_view pattern);
std::string FormatSingle(float value, std::string_view pattern);

// Formats a numeric text; any other text is returned unchanged.
std::string FormatText(std::string_view text, std::string_view pattern);

inline constexpr std::string_view kMoneyPattern = "#,###,###.00";  // text boxes and messages
inline constexpr std::string_view kAmountPattern = "###.#0";       // the Amount column
inline constexpr std::string_view kSumPattern = "#,###,##0.00";    // 0.50 rather than .50
inline constexpr std::string_view kFeePattern = "###.##";

}  // namespace benevix
