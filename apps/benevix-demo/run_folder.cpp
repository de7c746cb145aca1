#include "run_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>

#include "core/codec.h"
#include "core/settings_store.h"
#include "people/contact_information.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/user_folders.h"
#include "platform/qt/settings_file.h"
#include "player/world.h"

namespace benevix {

RunFolder::RunFolder(const QString& path) : path_(path) {
  const QByteArray settings = QFile::encodeName(path + "/settings");
  qputenv("XDG_CONFIG_HOME", settings + "/user");
  qputenv("XDG_CONFIG_DIRS", settings + "/machine");
  qputenv("XDG_DATA_HOME", settings + "/data");
  qputenv("XDG_CACHE_HOME", settings + "/cache");
  // The first run puts a shortcut on the desktop: on one of the folder's own.
  QDir().mkpath(path + "/settings/user");
  QDir().mkpath(path + "/settings/desktop");
  QFile folders(path + "/settings/user/user-dirs.dirs");
  if (folders.open(QIODevice::WriteOnly)) {
    folders.write("XDG_DESKTOP_DIR=\"" + settings + "/desktop\"\n");
  }
}

void RunFolder::UseSite(const QString& address) const {
  const Deployment values = DeploymentOn(address.toStdString());
  const std::string text = "ServerBase=" + values.serverBase +
                           "\nPaymentBase=" + values.paymentBase + "\nMail=" + values.mail +
                           "\nTranslationName=" + values.translationName +
                           "\nTranslationBase=" + values.translationBase +
                           "\nCopyright=" + values.copyright + "\nProduct=" + values.product + "\n";
  const FilePath file((path_ + "/deployment.ini").toStdString());
  LinuxFiles().Replace(file, text, Readers::Everyone);
}

void RunFolder::EnsureContact() const {
  LinuxFiles files;
  SettingsFile registry(files, UserConfigFile(kSettingsName), MachineConfigFile(kSettingsName));
  SettingsStore settings(registry);
  if (!settings.GetUserString("UsrInfo").empty()) return;
  const char* const fields[contact_field::kCount] = {
      "Robin Sample", "12 Example Street",   "Springfield", "Oregon", "97000",
      "U.S.A.",       "robin@sample.example"};
  frmPersInfo window;
  for (int i = 0; i < contact_field::kCount; ++i) window.Text1[i].Write(fields[i]);
  const TextCodec codec(QFileInfo(Program()).completeBaseName().toStdString());
  settings.SaveUserString("UsrInfo", codec.Scramble(JoinContact(window)));
}

}  // namespace benevix
