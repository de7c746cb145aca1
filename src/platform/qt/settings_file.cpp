#include "platform/qt/settings_file.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QThread>

#include "base/text.h"
#include "platform/qt/settings_text.h"
#include "platform/qt/settings_value.h"

namespace benevix {
namespace {

constexpr ResultCode kSuccess = 0;
constexpr int kLockTimeout = 10'000;  // milliseconds
constexpr int kLockInterval = 2;      // milliseconds
constexpr auto kFileName = "/benevix/benevix.conf";

// Polls at a fixed interval: QLockFile's own waiting backs off, so that a program that writes often
// would get the lock every time.
bool Acquire(QLockFile& lock) {
  const QDeadlineTimer deadline(kLockTimeout);
  while (!lock.tryLock(0)) {
    if (lock.error() != QLockFile::LockFailedError) return false;
    // A lock file damaged in a crash names no process, so tryLock never finds it stale. The lock of
    // a running process is not removed.
    if (deadline.hasExpired()) return lock.removeStaleLockFile() && lock.tryLock(0);
    QThread::msleep(kLockInterval);
  }
  return true;
}

QByteArray Utf8(const std::string& text) {
  return QByteArray::fromStdString(ToUtf8(text));
}

}  // namespace

class SettingsFile::Key : public RegistryKey {
 public:
  Key(const SettingsFile& settings, Root root, QByteArray path, Access access)
      : settings_(settings), root_(root), path_(std::move(path)), access_(access) {}

  ResultCode Write(const std::string& name, std::uint32_t type, const std::string& bytes) override {
    const auto line = ToLine(type, bytes);
    if (access_ == Access::Query || !line) return kFailed;
    return settings_.Change(root_, [&](SettingsText& text) {
      text.SetValue(path_, Utf8(name), *line);
      return true;
    });
  }

  ResultCode Read(const std::string& name, std::uint32_t& type, std::string& bytes) override {
    const auto text = settings_.Load(root_);
    const auto line = text ? text->Value(path_, Utf8(name)) : std::nullopt;
    auto value = line ? FromLine(*line) : std::nullopt;
    if (access_ == Access::SetValue || !value) return kFailed;
    type = value->type;
    bytes = std::move(value->bytes);
    return kSuccess;
  }

  ResultCode Delete(const std::string& name) override {
    if (access_ == Access::Query) return kFailed;
    return settings_.Change(
        root_, [&](SettingsText& text) { return text.RemoveValue(path_, Utf8(name)); });
  }

 private:
  const SettingsFile& settings_;
  Root root_;
  QByteArray path_;
  Access access_;
};

SettingsFile::SettingsFile(const std::string& userFile, const std::string& machineFile,
                           bool machineWritable)
    : userFile_(QString::fromStdString(userFile)),
      machineFile_(QString::fromStdString(machineFile)),
      machineWritable_(machineWritable) {}

std::unique_ptr<RegistryKey> SettingsFile::OpenKey(Root root, const std::string& path,
                                                   Access access) {
  const auto text = Load(root);
  if (!text || !text->HasKey(Utf8(path))) return nullptr;
  if (access != Access::Query && !IsWritable(root)) return nullptr;
  return std::make_unique<Key>(*this, root, Utf8(path), access);
}

std::unique_ptr<RegistryKey> SettingsFile::CreateKey(Root root, const std::string& path) {
  const ResultCode code = Change(root, [&](SettingsText& text) {
    text.AddKey(Utf8(path));
    return true;
  });
  return code == kSuccess ? std::make_unique<Key>(*this, root, Utf8(path), Access::Full) : nullptr;
}

ResultCode SettingsFile::DeleteKey(Root root, const std::string& path) {
  return Change(root, [&](SettingsText& text) { return text.RemoveKey(Utf8(path)); });
}

const QString& SettingsFile::File(Root root) const {
  return root == Root::CurrentUser ? userFile_ : machineFile_;
}

bool SettingsFile::IsWritable(Root root) const {
  return root == Root::CurrentUser || machineWritable_;
}

std::optional<SettingsText> SettingsFile::Load(Root root) const {
  const QFileInfo info(File(root));
  if (!info.exists()) return SettingsText({});
  if (!info.isFile()) return std::nullopt;  // reading a device or pipe may never end
  QFile file(info.filePath());
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return std::nullopt;
  return SettingsText(bytes);
}

ResultCode SettingsFile::Change(Root root, const std::function<bool(SettingsText&)>& change) const {
  const QString& name = File(root);
  if (!IsWritable(root) || !QDir().mkpath(QFileInfo(name).path())) return kFailed;
  QLockFile lock(name + QStringLiteral(".lock"));
  lock.setStaleLockTime(0);  // only a dead process's lock is stale, never one held for long
  if (!Acquire(lock)) return kFailed;
  auto text = Load(root);
  if (!text || !change(*text)) return kFailed;

  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly)) return kFailed;
  // A new file is private to the user, since it will contain an address.
  if (root == Root::CurrentUser && !QFile::exists(name)) {
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
  }
  const QByteArray bytes = text->Bytes();
  // Checked here, as commit() does not notice a full disk.
  const bool isWritten = file.write(bytes) == bytes.size() && file.flush();
  return isWritten && file.commit() ? kSuccess : kFailed;
}

std::string SettingsFile::DefaultUserFile() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return folder.toStdString() + kFileName;
}

std::string SettingsFile::DefaultMachineFile() {
  // The first folder is the user's, then follow the machine's by preference.
  const auto folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
  return folders.value(1, QStringLiteral("/etc/xdg")).toStdString() + kFileName;
}

}  // namespace benevix
