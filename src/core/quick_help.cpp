#include "core/quick_help.h"

#include "base/lines.h"
#include "base/runtime_error.h"

namespace benevix {

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
    std::string name(line.substr(start, q - start - 1));
    for (auto at = name.find('%'); at != std::string::npos; at = name.find('%')) {
      name.replace(at, 3, " ");
    }
    qhelp1.items[k++].caption = name;
  }
}

}  // namespace benevix
