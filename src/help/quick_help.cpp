#include "help/quick_help.h"

#include <string>
#include <string_view>

#include "base/lines.h"
#include "base/runtime_error.h"

namespace benevix {
namespace {

// Replaces each "%" and the two characters after it by a blank.
std::string WithoutEscapes(std::string_view name) {
  std::string text;
  for (std::size_t i = 0; i < name.size(); ++i) {
    text += name[i] == '%' ? ' ' : name[i];
    if (name[i] == '%') i += 2;
  }
  return text;
}

}  // namespace

void BuildQuickHelpMenu(const Files& files, const FilePath& page, MenuArray& qhelp1) {
  std::string text;
  try {
    text = files.ReadAll(page);
  } catch (const RuntimeError&) {
    return;
  }
  const std::string anchor = "<A NAME=";
  int index = 0;
  for (const std::string_view line : Lines(text)) {
    const auto at = line.find(anchor);
    if (at == std::string_view::npos) continue;
    const auto start = at + anchor.size() + 1;
    const auto end = line.find('>', at);
    if (end == std::string_view::npos || end < start + 1) return;
    qhelp1.items[index++].caption = WithoutEscapes(line.substr(start, end - start - 1));
  }
}

}  // namespace benevix
