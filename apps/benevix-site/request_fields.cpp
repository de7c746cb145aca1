#include "request_fields.h"

#include <algorithm>
#include <charconv>

namespace benevix {

std::string PercentDecode(std::string_view text) {
  std::string decoded;
  decoded.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    unsigned char byte = 0;
    if (text[i] == '%' && i + 2 < text.size()) {
      const char* first = text.data() + i + 1;
      if (std::from_chars(first, first + 2, byte, 16).ptr == first + 2) {
        decoded.push_back(static_cast<char>(byte));
        i += 2;
        continue;
      }
    }
    decoded.push_back(text[i]);
  }
  return decoded;
}

std::vector<RequestField> SplitFields(std::string_view query) {
  std::vector<RequestField> fields;
  while (!query.empty()) {
    const std::string_view field = query.substr(0, query.find('&'));
    query.remove_prefix(std::min(field.size() + 1, query.size()));
    const std::string_view key = field.substr(0, field.find('='));
    const std::string_view value = field.substr(std::min(key.size() + 1, field.size()));
    fields.push_back({PercentDecode(key), PercentDecode(value)});
  }
  return fields;
}

std::string FieldValue(const std::vector<RequestField>& fields, std::string_view key) {
  const auto found = std::find_if(fields.begin(), fields.end(),
                                  [key](const RequestField& field) { return field.key == key; });
  return found == fields.end() ? std::string() : found->value;
}

}  // namespace benevix
