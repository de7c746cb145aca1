#include "benevix/machine.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>

#include "base/runtime_error.h"
#include "benevix/users_folder.h"
#include "mirror/look/texts.h"
#include "platform/linux/program_folder.h"
#include "platform/linux/user_folders.h"
#include "platform/qt/deployment_file.h"
#include "platform/qt/wire_url.h"

namespace benevix {
namespace {

ProgramInfo InfoOf(const QFileInfo& executable) {
  const std::string path = executable.absoluteFilePath().toStdString();
  const std::string installed = InstalledFolder(path);
  ProgramInfo info;
  info.deployment = ReadDeployment(DeploymentFile(path));
  const std::string folder = ProgramFolder(path);
  info.folder = FilePath(folder);
  if (folder != installed) {
    info.installed = FilePath(installed);
    FillUsersFolder(installed, folder);
  }
  info.exeName = FromQString(executable.completeBaseName());
  info.major = BENEVIX_VERSION_MAJOR;
  info.minor = BENEVIX_VERSION_MINOR;
  info.revision = BENEVIX_VERSION_REVISION;
  const QSize screen = QGuiApplication::primaryScreen()->size();
  info.screenWidth = screen.width() * kTwipsPerPixel;
  info.screenHeight = screen.height() * kTwipsPerPixel;
  return info;
}

// By the ways of the desktop: portals, the user's choice, the tools that are there.
bool OpenInBrowser(const std::string& address) {
  try {
    return QDesktopServices::openUrl(WireUrl(address));
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace

Machine::Machine(const std::string& executable, Waits& waits, MessageBoxes& boxes)
    : waits_(waits),
      boxes_(boxes),
      info_(InfoOf(QFileInfo(QString::fromStdString(executable)))),
      registry_(files_, UserConfigFile(kSettingsName), MachineConfigFile(kSettingsName)),
      http_(waits),
      shell_(OpenInBrowser) {}

Environment Machine::TheEnvironment() {
  return {info_, registry_, http_, boxes_, waits_, clock_, random_, shell_, files_, printer_};
}

}  // namespace benevix
