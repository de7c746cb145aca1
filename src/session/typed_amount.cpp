#include "session/typed_amount.h"

#include <regex>

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

bool HasDecimalComma(std::string_view text) {
  static const std::regex thousands("[^0-9.,]*[1-9][0-9]{0,2}(,[0-9]{3})+([^0-9,][^,]*)?");
  return text.find(',') != std::string_view::npos &&
         !std::regex_match(text.begin(), text.end(), thousands);
}

}  // namespace benevix
