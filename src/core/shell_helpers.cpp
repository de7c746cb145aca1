#include "core/shell_helpers.h"

#include "base/text.h"

namespace benevix {

FilePath GetSpecialFolder(const Shell& shell, int folderId) {
  return shell.SpecialFolder(folderId);
}

void CreateDesktopShortcut(Shell& shell, const ProgramInfo& info) {
  const std::string name = ToUtf8(info.exeName);
  const FilePath folder = GetSpecialFolder(shell, kProgramsFolder) / FilePath(name);
  shell.CopyIntoFolder(folder / FilePath(name + shell.ShortcutExtension()),
                       GetSpecialFolder(shell, kDesktopFolder));
}

}  // namespace benevix
