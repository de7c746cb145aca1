#pragma once

#include <string>

#include "platform/environment.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_shell.h"
#include "platform/linux/random_generator.h"
#include "platform/linux/system_clock.h"
#include "platform/qt/qt_http_client.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/settings_file.h"

namespace benevix {

// The environment of the program on this machine: the real files, settings, network and printer.
// Needs a QApplication.
class Machine {
 public:
  // The executable's path, UTF-8, decides its name, the installed folder, from which
  // deployment.ini is read, and the program folder, which is filled where it is the user's. Raises
  // RuntimeError when that cannot be done.
  Machine(const std::string& executable, Waits& waits, MessageBoxes& boxes);

  [[nodiscard]] Environment TheEnvironment();

 private:
  Waits& waits_;
  MessageBoxes& boxes_;
  ProgramInfo info_;
  LinuxFiles files_;
  SettingsFile registry_;
  QtHttpClient http_;
  SystemClock clock_;
  RandomGenerator random_;
  LinuxShell shell_;
  QtPrinter printer_;
};

}  // namespace benevix
