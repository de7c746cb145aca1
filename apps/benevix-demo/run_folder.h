#pragma once

#include <QString>

namespace benevix {

// The folder that the demonstration runs in: the installed program with its own deployment values
// and settings, so that nothing of the user's is touched.
class RunFolder {
 public:
  // Turns the settings of this process and of those it starts to the folder.
  explicit RunFolder(const QString& path);

  [[nodiscard]] QString Program() const { return path_ + "/benevix"; }
  [[nodiscard]] QString Pictures() const { return path_ + "/pictures"; }
  [[nodiscard]] QString History() const { return path_ + "/Resources/history.dat"; }

  // Writes deployment.ini. Raises RuntimeError when it cannot be written.
  void UseSite(const QString& address) const;

  // Stores a contact as the contact window would, when there is none yet, so that a donation can be
  // given at once.
  void EnsureContact() const;

 private:
  QString path_;
};

}  // namespace benevix
