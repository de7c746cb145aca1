#pragma once

#include <string>
#include <string_view>

#include "base/currency.h"

namespace benevix {

// Number patterns of `0`, `#`, `,` and `.`: digits are rounded half away from zero to the places
// after the point, the point is always written, a comma between places groups by thousands, a
// second point is literal text. Doubles count with 15 significant digits, singles with 7.
std::string Format(Currency value, std::string_view pattern);
std::string FormatDouble(double value, std::string_view pattern);
std::string FormatSingle(float value, std::string_view pattern);

// A text that is not numeric comes back unchanged.
std::string FormatText(std::string_view text, std::string_view pattern);

// How amounts are shown: in boxes and messages, and in the Amount column.
inline constexpr std::string_view kMoneyPattern = "#,###,###.00";
inline constexpr std::string_view kAmountPattern = "###.#0";
inline constexpr std::string_view kSumPattern = "#,###,##0.00";  // also below one
inline constexpr std::string_view kFeePattern = "###.##";

}  // namespace benevix
