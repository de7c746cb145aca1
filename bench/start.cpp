// Starts the program like its own main, but closes the splash at once.
//
// usage: bench-start FOLDER

#include <QApplication>
#include <QTimer>
#include <cstdio>

#include "base/runtime_error.h"
#include "benevix/machine.h"
#include "database/list_ahead.h"
#include "mirror/look/theme.h"
#include "mirror/mirror/mirror.h"
#include "mirror/mirror/qt_message_boxes.h"
#include "platform/linux/linux_files.h"
#include "program/program.h"
#include "shown.h"

namespace {

using namespace benevix;

int Run(const std::string& folder, ListAhead list) {
  const Scheme scheme = DesktopScheme();
  ApplyTheme(*qApp, scheme);
  Mirror mirror(scheme, Mirror::Timers::Run);
  QtMessageBoxes boxes(mirror);
  Machine machine(folder + "/benevix", mirror, boxes);
  Program program(machine.TheEnvironment(), std::move(list));
  mirror.Attach(program.TheDesk(), program.TheInput());
  ReportWhenShown();
  program.Main();
  QTimer::singleShot(
      0, &mirror, [&] { program.TheInput().Click(program.TheForms().Get<frmSplash>().Image2[0]); });
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::string folder = argv[1];
  ListAhead list(LinuxFiles(), FilePath(folder) / "Resources" / kListFile);
  const QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  try {
    return Run(folder, std::move(list));
  } catch (const RuntimeError& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
