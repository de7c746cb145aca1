#include "core/shell_helpers.h"
#include "platform/linux/linux_shell.h"

// What the first run does on the desktop.
int main() {
  benevix::LinuxShell shell;
  benevix::ProgramInfo info;
  info.exeName = "benevix";
  benevix::CreateDesktopShortcut(shell, info);
}
