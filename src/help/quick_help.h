#pragma once

#include <string>

#include "controls/controls.h"
#include "platform/files.h"

namespace benevix {

// Makes a menu element of each anchor of the quick-help page: the first `<A NAME="...">` of a line,
// URL escapes read as blanks. A missing page or a malformed anchor ends the building there.
void BuildQuickHelpMenu(const Files& files, const std::string& page, MenuArray& qhelp1);

}  // namespace benevix
