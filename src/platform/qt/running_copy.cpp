#include "platform/qt/running_copy.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>
#include <unistd.h>

#include "base/runtime_error.h"

namespace benevix {
namespace {

constexpr int kPatience = 2000;  // milliseconds, in all
constexpr int kInterval = 20;    // milliseconds, while a copy starts or ends
constexpr qint64 kLongestToken = 1000;

// Another display's windows cannot be brought to this one's front.
QByteArray Display() {
  return qgetenv("WAYLAND_DISPLAY") + '\n' + qgetenv("DISPLAY");
}

// Where the copies of this user, program folder and display meet, created when missing; empty when
// there is no such place.
QString MeetingFolder(const MeetingPlace& place) {
  const QFileInfo runtime(place.runtimeFolder);
  if (!runtime.isAbsolute() || !runtime.isDir() || runtime.ownerId() != geteuid()) return {};
  const QByteArray program = QFileInfo(place.programFolder).absoluteFilePath().toUtf8();
  const QByteArray key = program + '\n' + Display();
  const QByteArray name = QCryptographicHash::hash(key, QCryptographicHash::Sha256).toHex();
  const QString folder = runtime.filePath() + "/benevix-" + name.left(16);
  return QDir().mkpath(folder) ? folder : QString();
}

// Whether the copy that listens there has answered.
bool BringToFront(const QString& address, const QByteArray& token, const QDeadlineTimer& deadline) {
  const auto left = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
  QLocalSocket socket;
  socket.connectToServer(address);
  if (!socket.waitForConnected(left())) return false;
  socket.write(token.left(kLongestToken) + '\n');
  while (socket.bytesAvailable() == 0) {
    if (!socket.waitForReadyRead(left())) return false;
  }
  return true;
}

}  // namespace

RunningCopy::RunningCopy(Files& files, const MeetingPlace& place, const QByteArray& token) {
  const QString folder = MeetingFolder(place);
  if (folder.isEmpty()) return;
  const QString address = folder + "/socket";
  const QDeadlineTimer deadline(kPatience);
  try {
    do {
      lock_ = files.Lock(FilePath(folder.toStdString()), {});
      isSecond_ = !lock_ && BringToFront(address, token, deadline);
      if (!lock_ && !isSecond_) QThread::msleep(kInterval);
    } while (!lock_ && !isSecond_ && !deadline.hasExpired());
    if (lock_) Listen(address);
  } catch (const RuntimeError&) {
    // Then this copy runs as well.
  }
}

void RunningCopy::Listen(const QString& address) {
  QLocalServer::removeServer(address);  // of a copy that was killed
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
    while (QLocalSocket* const socket = server_.nextPendingConnection()) {
      QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
      QObject::connect(socket, &QLocalSocket::readyRead, socket, [=, this] { Answer(*socket); });
      Answer(*socket);
    }
  });
  if (!server_.listen(address)) lock_.reset();  // nobody has to wait for it
}

void RunningCopy::Answer(QLocalSocket& socket) const {
  if (!socket.canReadLine()) return;
  onSecondStart(socket.readLine(kLongestToken + 1).trimmed());
  socket.write("\n");
  socket.disconnectFromServer();
}

}  // namespace benevix
