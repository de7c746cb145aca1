#include "player/numbers.h"

#include <cctype>
#include <charconv>
#include <cstdlib>

namespace benevix {

std::optional<int> WholeNumberIn(const std::string& text) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return number;
}

std::optional<double> DoubleIn(const std::string& text) {
  if (text.empty() || std::isspace(static_cast<unsigned char>(text.front()))) return std::nullopt;
  char* end = nullptr;
  const double number = std::strtod(text.c_str(), &end);
  if (end != text.c_str() + text.size()) return std::nullopt;
  return number;
}

}  // namespace benevix
