#include "base/lines.h"

namespace benevix {

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    std::string_view line = CutField(text, '\n');
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    lines.push_back(line);
  }
  return lines;
}

std::string_view CutField(std::string_view& text, char separator) {
  const auto at = text.find(separator);
  const std::string_view field = text.substr(0, at);
  text.remove_prefix(at == std::string_view::npos ? text.size() : at + 1);
  return field;
}

}  // namespace benevix
