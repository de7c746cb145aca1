#pragma once

#include "platform/program_info.h"
#include "platform/shell.h"

namespace benevix {

// The path of a shell folder; empty for an unknown identifier.
FilePath GetSpecialFolder(const Shell& shell, int folderId);

// Copies the program's shortcut, which the installer put into the start menu, to the desktop. Does
// nothing without one.
void CreateDesktopShortcut(Shell& shell, const ProgramInfo& info);

}  // namespace benevix
