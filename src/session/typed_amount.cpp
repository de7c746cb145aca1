#include "session/typed_amount.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/runtime_error.h"

namespace benevix {

TypedAmount ReadAmount(const std::string& text) {
  try {
    const auto number = ParseNumber(text);
    if (!number) return {std::nullopt, text.empty() ? "" : "This cannot be read as an amount"};
    ToInt32(*number);  // raises beyond its range
    return {number};
  } catch (const RuntimeError&) {
    return {std::nullopt, kTooLargeNote};
  }
}

namespace {

// How many digits the text begins with.
std::size_t DigitsOf(std::string_view text) {
  return std::min(text.find_first_not_of("0123456789"), text.size());
}

// Whether each comma of an amount stands before three digits, as in "$1,234,567.80".
bool DividesThousands(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_of("0123456789.,"), text.size()));
  const std::size_t first = DigitsOf(text);
  if (first < 1 || first > 3 || text[0] == '0') return false;
  text.remove_prefix(first);
  while (text.starts_with(',')) {
    text.remove_prefix(1);
    if (DigitsOf(text) != 3) return false;
    text.remove_prefix(3);
  }
  return text.find(',') == std::string_view::npos;
}

}  // namespace

bool HasDecimalComma(std::string_view text) {
  return text.find(',') != std::string_view::npos && !DividesThousands(text);
}

}  // namespace benevix
