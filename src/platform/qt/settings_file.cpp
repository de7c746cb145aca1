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

constexpr ResultCode kDone = 0;
constexpr int kLockWait = 10'000;  // milliseconds
constexpr int kLockPause = 2;
constexpr auto kFileName = "/benevix/benevix.conf";

// The lock's own waiting sleeps longer and longer, until a program that writes much wins every
// time.
bool Take(QLockFile& lock) {
  const QDeadlineTimer end(kLockWait);
  while (!lock.tryLock(0)) {
    if (lock.error() != QLockFile::LockFailedError) return false;
    // Damaged, as a crash may leave it, the lock names no program that could be asked after. One
    // that a living program holds is not removed.
    if (end.hasExpired()) return lock.removeStaleLockFile() && lock.tryLock(0);
    QThread::msleep(kLockPause);
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
    return kDone;
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
  return code == kDone ? std::make_unique<Key>(*this, root, Utf8(path), Access::Full) : nullptr;
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
  if (!info.isFile()) return std::nullopt;  // a device may have no end, a pipe no beginning
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
  lock.setStaleLockTime(0);  // a computer that slept keeps its lock; that of a dead program goes
  if (!Take(lock)) return kFailed;
  auto text = Load(root);
  if (!text || !change(*text)) return kFailed;

  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly)) return kFailed;
  // The user's settings hold an address; a new file is for no one else.
  if (root == Root::CurrentUser && !QFile::exists(name)) {
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
  }
  const QByteArray bytes = text->Bytes();
  // Looked at before, since the commit itself does not notice that the disk was full.
  const bool isWhole = file.write(bytes) == bytes.size() && file.flush();
  return isWhole && file.commit() ? kDone : kFailed;
}

std::string SettingsFile::DefaultUserFile() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return folder.toStdString() + kFileName;
}

std::string SettingsFile::DefaultMachineFile() {
  // The user's folder is the first of the list, the machine's follow by rank.
  const auto folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
  return folders.value(1, QStringLiteral("/etc/xdg")).toStdString() + kFileName;
}

}  // namespace benevix
