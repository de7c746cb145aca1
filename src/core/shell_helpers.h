#pragma once

#include <string>

#include "platform/program_info.h"
#include "platform/shell.h"

namespace benevix {

// A folder of the shell by its identifier; empty for an unknown one.
std::string GetSpecialFolder(const Shell& shell, int folderId);

// Puts the program's shortcut, which the installer left in the start menu, on the desktop. Without
// one there nothing happens.
void CreateDesktopShortcut(Shell& shell, const ProgramInfo& info);

}  // namespace benevix
