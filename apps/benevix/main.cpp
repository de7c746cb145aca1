// The desktop program.

#include <QApplication>
#include <cstdio>

#include "base/runtime_error.h"
#include "base/text.h"
#include "benevix/command.h"
#include "benevix/machine.h"
#include "database/list_ahead.h"
#include "mirror/look/desktop_scheme.h"
#include "mirror/look/pictures.h"
#include "mirror/look/theme.h"
#include "mirror/mirror/mirror.h"
#include "mirror/mirror/qt_message_boxes.h"
#include "mirror/mirror/window_layout.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/program_folder.h"
#include "platform/qt/running_copy.h"
#include "program/program.h"

namespace {

using namespace benevix;

constexpr auto kActivationToken = "XDG_ACTIVATION_TOKEN";

// On Wayland only the token of a start by the user lets a window come to the front; the toolkit
// looks for it where the desktop puts it for a program that starts.
void BringToFront(Mirror& mirror, const QByteArray& token) {
  if (!token.isEmpty()) qputenv(kActivationToken, token);
  mirror.BringToFront();
  qunsetenv(kActivationToken);
}

int RunOn(Machine& machine, Mirror& mirror, ListAhead list) {
  const Environment environment = machine.TheEnvironment();
  SettingsStore settings(environment.registry);
  const WindowLayout layout(settings);
  Program program(environment, std::move(list));
  mirror.Attach(program.TheDesk(), program.TheInput(), &layout);
  mirror.onEnded = [] { QCoreApplication::exit(); };
  program.Main();
  const int result = program.TheDesk().Ended() ? 0 : QApplication::exec();
  program.Finish();
  mirror.Detach();
  return result;
}

// A long list takes as long as the toolkit needs to start, so both begin together.
ListAhead LoadListAhead() {
  try {
    const FilePath folder(ProgramFolder(ExecutablePath()));
    return {LinuxFiles(), folder / "Resources" / kListFile};
  } catch (const RuntimeError&) {
    return {};  // the program loads it when it needs it
  }
}

int Run(const QByteArray& token, ListAhead list) {
  const std::string executable = QCoreApplication::applicationFilePath().toStdString();
  LinuxFiles files;
  RunningCopy copy(
      files,
      {qEnvironmentVariable("XDG_RUNTIME_DIR"), QString::fromStdString(ProgramFolder(executable))},
      token);
  if (copy.IsSecond()) return 0;
  DesktopSchemeWatch desktop;
  ApplyTheme(*qApp, desktop.Now());
  Mirror mirror(desktop.Now(), Mirror::Timers::Run);
  desktop.onChanged = [&mirror](Scheme scheme) {
    ApplyScheme(*qApp, scheme);
    mirror.SetScheme(scheme);
  };
  copy.onSecondStart = [&](const QByteArray& given) { BringToFront(mirror, given); };
  QtMessageBoxes boxes(mirror);
  try {
    Machine machine(executable, mirror, boxes);
    return RunOn(machine, mirror, std::move(list));
  } catch (const RuntimeError& error) {
    std::fprintf(stderr, "%s\n", ToUtf8(error.what()).c_str());
    boxes.Show("Benevix", error.what(), BoxIcon::Critical, BoxButtons::OK);
    return 1;
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (const auto status = benevix::RunCommand(argc, argv)) return *status;
  const QByteArray token = qgetenv(kActivationToken);  // before the toolkit takes it
  ListAhead list = LoadListAhead();
  const QApplication app(argc, argv);
  QApplication::setApplicationName("Benevix");
  QApplication::setWindowIcon(PictureIcon("benevix"));
  QApplication::setQuitOnLastWindowClosed(false);
  return Run(token, std::move(list));
}
