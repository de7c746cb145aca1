#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QString>
#include <functional>
#include <memory>

#include "platform/files.h"

namespace benevix {

// Where the copies of a program meet.
struct MeetingPlace {
  QString runtimeFolder;  // the user's own ($XDG_RUNTIME_DIR); empty without one
  QString programFolder;
};

// One copy of the program runs for each user, program folder and display; a second start tells it
// to come to the front. The running copy holds a lock in the user's runtime folder, which dies with
// its process, and listens on a socket beside it. Without a runtime folder, or when the copy that
// holds the lock does not answer, this copy runs as well.
class RunningCopy {
 public:
  // `token` is what lets a program of the Wayland desktop come to the front; may be empty. Takes no
  // longer than two seconds. Needs a QCoreApplication.
  RunningCopy(Files& files, const MeetingPlace& place, const QByteArray& token);

  // Another copy runs and has come to the front; this one is to end.
  [[nodiscard]] bool IsSecond() const { return isSecond_; }

  // The program was started once more, with this token. From an event loop only, so that a copy
  // that hangs does not answer.
  std::function<void(const QByteArray& token)> onSecondStart = [](const QByteArray&) {};

 private:
  void Listen(const QString& address);
  void Answer(QLocalSocket& socket) const;

  std::unique_ptr<FolderLock> lock_;
  QLocalServer server_;
  bool isSecond_ = false;
};

}  // namespace benevix
