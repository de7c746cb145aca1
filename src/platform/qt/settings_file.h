#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/files.h"
#include "platform/registry.h"

namespace benevix {

class SettingsText;

// The settings registry as two files in the format of SettingsText, one for the user and one for
// the machine. Nothing is cached: each read reads the file, each write replaces it on the disk,
// under a lock of its folder, so that concurrent programs lose no value. A write fails when another
// program does not give the lock back.
//
// Not QSettings, which keeps a value that it failed to write, returns it to later reads and may
// write it later, and misses a change within one tick of the file system's clock.
class SettingsFile : public Registry {
 public:
  // Paths are UTF-8. Without `machineWritable`, writes to LocalMachine fail.
  // Deletes what killed writes left beside the files.
  SettingsFile(Files& files, std::string userFile, std::string machineFile,
               bool machineWritable = true);

  std::unique_ptr<RegistryKey> OpenKey(Root root, const std::string& path, Access access) override;
  std::unique_ptr<RegistryKey> CreateKey(Root root, const std::string& path) override;
  ResultCode DeleteKey(Root root, const std::string& path) override;
  std::optional<RegistryValues> ReadValues(Root root, const std::string& path) override;
  ResultCode ChangeValues(Root root, const std::string& path,
                          const std::function<void(RegistryValues&)>& change) override;

 private:
  class Key;

  [[nodiscard]] const std::string& File(Root root) const;
  [[nodiscard]] bool IsWritable(Root root) const;
  // Empty when the file does not exist; nothing when it cannot be read.
  [[nodiscard]] std::optional<SettingsText> Load(Root root) const;
  // Loads, changes and saves under the lock; what stays the same is not saved. Saves nothing and
  // fails when `change` returns false.
  ResultCode Change(Root root, const std::function<bool(SettingsText&)>& change) const;

  Files& files_;
  std::string userFile_;
  std::string machineFile_;
  bool machineWritable_;
};

}  // namespace benevix
