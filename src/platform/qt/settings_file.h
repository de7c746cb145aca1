#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "platform/registry.h"

namespace benevix {

class SettingsText;

// The settings registry as two files in the format of SettingsText, one for the user and one for
// the machine. Nothing is cached: each read reads the file, each write replaces it on the disk,
// under a lock, so that concurrent programs lose no value.
//
// Not QSettings, which keeps a value that it failed to write, returns it to later reads and may
// write it later, and misses a change within one tick of the file system's clock.
class SettingsFile : public Registry {
 public:
  // Paths are UTF-8. Without `machineWritable`, writes to LocalMachine fail.
  SettingsFile(const std::string& userFile, const std::string& machineFile,
               bool machineWritable = true);

  std::unique_ptr<RegistryKey> OpenKey(Root root, const std::string& path, Access access) override;
  std::unique_ptr<RegistryKey> CreateKey(Root root, const std::string& path) override;
  ResultCode DeleteKey(Root root, const std::string& path) override;

  // benevix/benevix.conf in the user's and in the first of the machine's configuration folders.
  static std::string DefaultUserFile();
  static std::string DefaultMachineFile();

 private:
  class Key;

  [[nodiscard]] const QString& File(Root root) const;
  [[nodiscard]] bool IsWritable(Root root) const;
  // Empty when the file does not exist; nothing when it cannot be read.
  [[nodiscard]] std::optional<SettingsText> Load(Root root) const;
  // Loads, changes and saves under the lock. Saves nothing and fails when `change` returns false.
  ResultCode Change(Root root, const std::function<bool(SettingsText&)>& change) const;

  QString userFile_;
  QString machineFile_;
  bool machineWritable_;
};

}  // namespace benevix
