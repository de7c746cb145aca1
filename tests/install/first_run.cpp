#include "core/shell_helpers.h"
#include "platform/linux/linux_shell.h"

// Creates the desktop shortcut as the first run does.
int main() {
  benevix::LinuxShell shell;
  benevix::ProgramInfo info;
  info.exeName = "benevix";
  benevix::CreateDesktopShortcut(shell, info);
}
