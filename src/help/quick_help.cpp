#include "help/quick_help.h"

#include <string>
#include <string_view>

#include "base/lines.h"
#include "base/runtime_error.h"

namespace benevix {
namespace {

// Each "%" and the two characters behind it become a blank.
std::string WithoutEscapes(std::string_view name) {
  std::string clear;
  for (std::size_t i = 0; i < name.size(); ++i) {
    clear += name[i] == '%' ? ' ' : name[i];
    if (name[i] == '%') i += 2;
  }
  return clear;
}

}  // namespace

void BuildQuickHelpMenu(const Files& files, const std::string& page, MenuArray& qhelp1) {
  std::string text;
  try {
    text = files.ReadAll(page);
  } catch (const RuntimeError&) {
    return;
  }
  const std::string opening = "<A NAME=";
  int k = 0;
  for (const std::string_view line : Lines(text)) {
    const auto p = line.find(opening);
    if (p == std::string_view::npos) continue;
    const auto start = p + opening.size() + 1;
    const auto q = line.find('>', p);
    if (q == std::string_view::npos || q < start + 1) return;
    qhelp1.items[k++].caption = WithoutEscapes(line.substr(start, q - start - 1));
  }
}

}  // namespace benevix
