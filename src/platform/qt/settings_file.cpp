#include "platform/qt/settings_file.h"

#include <QDir>

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/qt/settings_text.h"
#include "platform/qt/settings_value.h"

namespace benevix {
namespace {

constexpr ResultCode kSuccess = 0;
// A write takes milliseconds; who holds the lock for longer has been stopped.
constexpr std::chrono::seconds kLockPatience{2};

std::string FolderOf(const std::string& file) {
  return PathOf(file).parent_path().string();
}

QByteArray Utf8(const std::string& text) {
  return QByteArray::fromStdString(ToUtf8(text));
}

RegistryValues ValuesOf(const SettingsText& text, const QByteArray& path) {
  RegistryValues values;
  for (const auto& [name, line] : text.ValuesOf(path)) {
    if (auto value = FromLine(line))
      values.emplace(FromUtf8(name.toStdString()), *std::move(value));
  }
  return values;
}

// False when a value has no form in the file.
bool SetValues(SettingsText& text, const QByteArray& path, const RegistryValues& values) {
  const RegistryValues old = ValuesOf(text, path);
  SettingsText::Changes changes;
  for (const auto& [name, value] : old) {
    if (!values.contains(name)) changes[Utf8(name)] = std::nullopt;
  }
  for (const auto& [name, value] : values) {
    const auto known = old.find(name);
    if (known != old.end() && known->second == value) continue;
    const auto line = ToLine(value.type, value.bytes);
    if (!line) return false;
    changes[Utf8(name)] = line;
  }
  text.Change(path, std::move(changes));
  return true;
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
      text.Change(path_, {{Utf8(name), line}});
      return true;
    });
  }

  ResultCode Read(const std::string& name, std::uint32_t& type, std::string& bytes) override {
    const auto text = settings_.Load(root_);
    if (!text) return kUnreadable;
    const auto line = text->Value(path_, Utf8(name));
    auto value = line ? FromLine(*line) : std::nullopt;
    if (access_ == Access::SetValue || !value) return kFailed;
    type = value->type;
    bytes = std::move(value->bytes);
    return kSuccess;
  }

  ResultCode Delete(const std::string& name) override {
    if (access_ == Access::Query) return kFailed;
    return settings_.Change(root_, [&](SettingsText& text) {
      return text.Change(path_, {{Utf8(name), std::nullopt}}) > 0;
    });
  }

 private:
  const SettingsFile& settings_;
  Root root_;
  QByteArray path_;
  Access access_;
};

SettingsFile::SettingsFile(Files& files, std::string userFile, std::string machineFile,
                           bool machineWritable)
    : files_(files),
      userFile_(std::move(userFile)),
      machineFile_(std::move(machineFile)),
      machineWritable_(machineWritable) {
  for (const std::string& file : {userFile_, machineFile_})
    files_.RemoveLeftovers(FilePath(FolderOf(file)));
}

std::unique_ptr<RegistryKey> SettingsFile::OpenKey(Root root, const std::string& path,
                                                   Access access) {
  const auto text = Load(root);
  const bool isThere = text ? text->HasKey(Utf8(path)) : access == Access::Query;
  if (!isThere || (access != Access::Query && !IsWritable(root))) return nullptr;
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

std::optional<RegistryValues> SettingsFile::ReadValues(Root root, const std::string& path) {
  const auto text = Load(root);
  if (!text) return std::nullopt;
  return ValuesOf(*text, Utf8(path));
}

ResultCode SettingsFile::ChangeValues(Root root, const std::string& path,
                                      const std::function<void(RegistryValues&)>& change) {
  return Change(root, [&](SettingsText& text) {
    RegistryValues values = ValuesOf(text, Utf8(path));
    change(values);
    return SetValues(text, Utf8(path), values);
  });
}

const std::string& SettingsFile::File(Root root) const {
  return root == Root::CurrentUser ? userFile_ : machineFile_;
}

bool SettingsFile::IsWritable(Root root) const {
  return root == Root::CurrentUser || machineWritable_;
}

std::optional<SettingsText> SettingsFile::Load(Root root) const {
  if (!files_.Exists(FilePath(File(root)))) return SettingsText({});
  try {
    return SettingsText(QByteArray::fromStdString(files_.ReadAll(FilePath(File(root)))));
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

ResultCode SettingsFile::Change(Root root, const std::function<bool(SettingsText&)>& change) const {
  const std::string& name = File(root);
  const std::string folder = FolderOf(name);
  if (!IsWritable(root) || !QDir().mkpath(QString::fromStdString(folder))) return kFailed;
  try {
    const auto lock = files_.Lock(FilePath(folder), kLockPatience);
    if (!lock) return kFailed;
    auto text = Load(root);
    if (!text) return kUnreadable;
    const QByteArray old = text->Bytes();
    if (!change(*text)) return kFailed;
    if (text->Bytes() == old) return kSuccess;
    // The user's contains an address.
    const Readers readers = root == Root::CurrentUser ? Readers::Owner : Readers::Everyone;
    files_.Replace(FilePath(name), text->Bytes().toStdString(), readers);
    return kSuccess;
  } catch (const RuntimeError&) {
    return kFailed;
  }
}

}  // namespace benevix
