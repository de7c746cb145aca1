#pragma once

#include <cstdint>
#include <string>

#include "platform/registry.h"

namespace benevix {

inline const std::string kSettingsPath = "Software\\Quorl\\Benevix";
inline const std::string kFavoritesPath = kSettingsPath + "\\Favorites";

// The program's settings: texts under a key of the registry. Nothing here fails: what cannot be
// read is the empty text, what cannot be written is not. There is no cache.
class SettingsStore {
 public:
  explicit SettingsStore(Registry& registry) : registry_(registry) {}

  void CreateKey(Root root, const std::string& path);

  // Writes through SetValueOnHandle when the key is there.
  void SetValue(Root root, const std::string& path, const std::string& name, std::uint32_t type,
                const std::string& value);
  // A text with its closing NUL or a 32-bit number; any other type writes nothing and gives 0.
  static ResultCode SetValueOnHandle(RegistryKey& key, const std::string& name, std::uint32_t type,
                                     const std::string& value);

  // Makes the key first when it is not there.
  void SaveString(Root root, const std::string& path, const std::string& name,
                  const std::string& value);
  std::string GetString(Root root, const std::string& path, const std::string& name);
  static ResultCode QueryValueOnHandle(RegistryKey& key, const std::string& name,
                                       std::string& value);

  void DeleteValue(Root root, const std::string& path, const std::string& name);

  // The program's own key in the user's branch.
  void SaveUserString(const std::string& name, const std::string& value) {
    SaveString(Root::CurrentUser, kSettingsPath, name, value);
  }
  std::string GetUserString(const std::string& name) {
    return GetString(Root::CurrentUser, kSettingsPath, name);
  }

 private:
  Registry& registry_;
};

}  // namespace benevix
