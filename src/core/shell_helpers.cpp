#include "core/shell_helpers.h"

#include "base/text.h"

namespace benevix {

FilePath GetSpecialFolder(const Shell& shell, int folderId) {
  return shell.SpecialFolder(folderId);
}

void CreateDesktopShortcut(Shell& shell, const ProgramInfo& info) {
  const std::string name = ToUtf8(info.exeName);
  const FilePath folder = GetSpecialFolder(shell, kProgramsFolder) / name;
  shell.CopyIntoFolder(folder / (name + shell.ShortcutExtension()),
                       GetSpecialFolder(shell, kDesktopFolder));
}

}  // namespace benevix
