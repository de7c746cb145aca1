#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "platform/registry.h"

namespace benevix {

class SettingsText;

// The settings registry as two files, one for the user and one for the machine (SettingsText says
// how they look). Nothing is cached: every read reads the file. Every write is done on the disk
// when it returns, under a lock, so that programs that write at the same time lose nothing. What
// cannot be written stays unwritten, silently but for the result code.
//
// Not built on the toolkit's own settings class, since that one keeps a value it could not write,
// gives it to later reads and writes it when nobody expects it any more, and does not see a change
// of the file within one tick of the file system's clock.
class SettingsFile : public Registry {
 public:
  // Paths are UTF-8. With `machineWritable` false the machine's branch refuses writing.
  SettingsFile(const std::string& userFile, const std::string& machineFile,
               bool machineWritable = true);

  std::unique_ptr<RegistryKey> OpenKey(Root root, const std::string& path, Access access) override;
  std::unique_ptr<RegistryKey> CreateKey(Root root, const std::string& path) override;
  ResultCode DeleteKey(Root root, const std::string& path) override;

  // benevix/benevix.conf in the user's folder for settings and in the first of the machine's.
  static std::string DefaultUserFile();
  static std::string DefaultMachineFile();

 private:
  class Key;

  [[nodiscard]] const QString& File(Root root) const;
  [[nodiscard]] bool IsWritable(Root root) const;
  // The file's text, empty when it is not there; nothing when it cannot be read.
  [[nodiscard]] std::optional<SettingsText> Load(Root root) const;
  // Loads, changes and saves under the lock; `change` gives false when there is nothing to save.
  ResultCode Change(Root root, const std::function<bool(SettingsText&)>& change) const;

  QString userFile_;
  QString machineFile_;
  bool machineWritable_;
};

}  // namespace benevix
