#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace benevix {

struct RequestField {
  std::string key;
  std::string value;
};

// Turns %XX into bytes; a "%" without two hexadecimal digits stays. "+" stays too: the program
// sends blanks as %20 and everything else as typed.
std::string PercentDecode(std::string_view text);

// The fields of "key=value&key=value", decoded, in their order. A key may be empty.
std::vector<RequestField> SplitFields(std::string_view query);

// The value of the first field with this key, empty when there is none.
std::string FieldValue(const std::vector<RequestField>& fields, std::string_view key);

}  // namespace benevix
