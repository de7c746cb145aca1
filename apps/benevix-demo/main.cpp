// The demonstration: the program on a site of its own on this machine, with a contact filled in.
// With a display the program is started; without one the same session is played on windows off the
// screen.

#include <QApplication>
#include <cstdio>

#include "base/runtime_error.h"
#include "base/text.h"
#include "demonstration.h"
#include "demonstration_site.h"
#include "mirror/page_viewer/administrator.h"
#include "player/front_end.h"
#include "run_folder.h"

namespace {

using namespace benevix;

constexpr auto kProbe = "--probe-display";

// Whether a display can be opened. Tried by a process of its own, since the toolkit ends the one
// that fails.
bool HasDisplay() {
  if (!IsDisplayNamed()) return false;
  QProcess probe;
  probe.setStandardErrorFile(QProcess::nullDevice());
  probe.start(QCoreApplication::applicationFilePath(), {kProbe});
  probe.waitForFinished();
  return probe.exitStatus() == QProcess::NormalExit && probe.exitCode() == 0;
}

// The demonstration shows pages of this machine only, so it may do without the engine's sandbox
// where that does not work.
void DisableSandbox() {
  qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}

// Keeps messages of the toolkit and the engine out of what the demonstration tells.
void QuietToolkit() {
  const char* const variable = "QT_LOGGING_RULES";
  if (qEnvironmentVariableIsSet(variable)) return;
  qputenv(variable, "*.debug=false;*.info=false;*.warning=false");
}

void Print(const QString& text) {
  std::printf("%s\n", qUtf8Printable(text));
}

int RunProgram(const RunFolder& folder, DemonstrationSite& site) {
  if (RunsAsAdministrator()) DisableSandbox();
  Print("The demonstration site answers at " + site.Address());
  site.onLogLine = Print;
  QProcess program;
  EndWithThisProcess(program);
  program.setProcessChannelMode(QProcess::ForwardedChannels);
  QObject::connect(&program, &QProcess::finished, [](int code) { QCoreApplication::exit(code); });
  program.start(folder.Program(), QStringList());
  if (!program.waitForStarted()) {
    throw RuntimeError(folder.Program().toStdString() + " cannot be started");
  }
  return QCoreApplication::exec();
}

int Demonstrate(bool hasDisplay) {
  try {
    const QString path = QCoreApplication::applicationDirPath();
    const RunFolder folder(path);
    DemonstrationSite site(path);
    folder.UseSite(site.Address());
    folder.EnsureContact();
    if (hasDisplay) return RunProgram(folder, site);
    Demonstration(folder, site).Play();
    return 0;
  } catch (const std::exception& error) {
    std::fflush(stdout);
    std::fprintf(stderr, "benevix-demo: %s\n", ToUtf8(error.what()).c_str());
    return 1;
  }
}

bool ProbeDisplay(int& argc, char** argv) {
  const QCoreApplication app(argc, argv);
  return HasDisplay();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string(argv[1]) == kProbe) {
    const QGuiApplication app(argc, argv);
    return 0;
  }
  QuietToolkit();
  if (ProbeDisplay(argc, argv)) {
    const QCoreApplication app(argc, argv);
    return Demonstrate(true);
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  DisableSandbox();
  const QApplication app(argc, argv);
  QApplication::setApplicationName("Benevix");
  QApplication::setQuitOnLastWindowClosed(false);
  return Demonstrate(false);
}
