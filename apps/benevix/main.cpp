// The desktop program.

#include <QApplication>
#include <QIcon>
#include <cstdio>

#include "base/runtime_error.h"
#include "base/text.h"
#include "benevix/machine.h"
#include "mirror/look/theme.h"
#include "mirror/mirror/mirror.h"
#include "mirror/mirror/qt_message_boxes.h"
#include "mirror/mirror/window_layout.h"
#include "program/program.h"

namespace {

using namespace benevix;

int RunOn(Machine& machine, Mirror& mirror) {
  const Environment environment = machine.TheEnvironment();
  SettingsStore settings(environment.registry);
  const WindowLayout layout(settings);
  Program program(environment);
  mirror.Attach(program.TheDesk(), program.TheInput(), &layout);
  mirror.onEnded = [] { QCoreApplication::exit(); };
  program.Main();
  const int result = program.TheDesk().Ended() ? 0 : QApplication::exec();
  program.Finish();
  mirror.Detach();
  return result;
}

int Run() {
  const Scheme scheme = DesktopScheme();
  ApplyTheme(*qApp, scheme);
  Mirror mirror(scheme, Mirror::Timers::Run);
  QtMessageBoxes boxes(mirror);
  try {
    Machine machine(QCoreApplication::applicationFilePath().toStdString(), mirror, boxes);
    return RunOn(machine, mirror);
  } catch (const RuntimeError& error) {
    std::fprintf(stderr, "%s\n", ToUtf8(error.what()).c_str());
    boxes.Show("Benevix", error.what(), BoxIcon::Critical, BoxButtons::OK);
    return 1;
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication app(argc, argv);
  QApplication::setApplicationName("Benevix");
  QApplication::setWindowIcon(QIcon(":/images/benevix.svg"));
  QApplication::setQuitOnLastWindowClosed(false);
  return Run();
}
