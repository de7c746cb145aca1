#pragma once

#include <optional>
#include <string>

#include "platform/linux/linux_files.h"
#include "platform/qt/settings_file.h"

namespace benevix {

// The settings of a world: two real files. The script can write where the program may not.
class WorldSettings : public Registry {
 public:
  explicit WorldSettings(const std::string& folder);

  void MakeMachineReadonly() { machineReadonly_ = true; }

  // `branch` is user, machine or favorites; the empty name is the default value.
  void Put(const std::string& branch, const std::string& name, const std::string& text);
  void Remove(const std::string& branch, const std::string& name);
  // A number as its decimal text; nothing when the value is not there or neither text nor number.
  [[nodiscard]] std::optional<std::string> Text(const std::string& branch, const std::string& name);

  std::unique_ptr<RegistryKey> OpenKey(Root root, const std::string& path, Access access) override;
  std::unique_ptr<RegistryKey> CreateKey(Root root, const std::string& path) override;
  ResultCode DeleteKey(Root root, const std::string& path) override;
  std::optional<RegistryValues> ReadValues(Root root, const std::string& path) override;
  ResultCode ChangeValues(Root root, const std::string& path,
                          const std::function<void(RegistryValues&)>& change) override;

 private:
  [[nodiscard]] Registry& ForProgram() { return machineReadonly_ ? refusing_ : writable_; }

  LinuxFiles files_;
  SettingsFile writable_;
  SettingsFile refusing_;
  bool machineReadonly_ = false;
};

}  // namespace benevix
