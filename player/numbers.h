#pragma once

#include <optional>
#include <string>

namespace benevix {

// Numbers as scripts write them; the whole text must be the number.

std::optional<int> WholeNumberIn(const std::string& text);

// Decimal or C hexadecimal (0x1p-3), "inf" and "nan" too. Beyond a double it is infinite, below it
// 0.
std::optional<double> DoubleIn(const std::string& text);

}  // namespace benevix
