#pragma once

#include <string>

#include "controls/controls.h"
#include "platform/files.h"

namespace benevix {

// Adds a menu item for each anchor of the quick-help page: the first `<A NAME="...">` of a line,
// with blanks for URL escapes. A malformed anchor ends the menu; without the page nothing is added.
void BuildQuickHelpMenu(const Files& files, const FilePath& page, MenuArray& qhelp1);

}  // namespace benevix
