#include "core/shell_helpers.h"

namespace benevix {

std::string GetSpecialFolder(const Shell& shell, int folderId) {
  return shell.SpecialFolder(folderId);
}

void CreateDesktopShortcut(Shell& shell, const ProgramInfo& info) {
  const std::string source = GetSpecialFolder(shell, kProgramsFolder) + "/" + info.exeName + "/" +
                             info.exeName + shell.ShortcutExtension();
  shell.CopyIntoFolder(source, GetSpecialFolder(shell, kDesktopFolder));
}

}  // namespace benevix
