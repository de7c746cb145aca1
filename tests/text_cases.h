#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace benevix {

// Splits test cases written as "input => expected".
inline std::vector<std::pair<std::string, std::string>> Cases(
    std::initializer_list<std::string> texts) {
  const std::string arrow = " => ";
  std::vector<std::pair<std::string, std::string>> cases;
  for (const std::string& text : texts) {
    const auto at = text.find(arrow);
    cases.emplace_back(text.substr(0, at), text.substr(at + arrow.size()));
  }
  return cases;
}

}  // namespace benevix
