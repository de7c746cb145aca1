#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "platform/registry.h"

namespace benevix {

inline const std::string kSettingsPath = "Software\\Quorl\\Benevix";
inline const std::string kFavoritesPath = kSettingsPath + "\\Favorites";

// At a box of a window that stays open because nothing could be written.
inline constexpr const char* kNotSavedNote = "Not saved: the settings cannot be written";

using SettingsTexts = std::map<std::string, std::string>;

// The program's settings: texts under a registry key. What cannot be read is empty, what cannot be
// written is skipped. Nothing is cached.
class SettingsStore {
 public:
  explicit SettingsStore(Registry& registry) : registry_(registry) {}

  void CreateKey(Root root, const std::string& path);

  // Writes with SetValueOnHandle if the key exists. False when nothing could be written.
  bool SetValue(Root root, const std::string& path, const std::string& name, std::uint32_t type,
                const std::string& value);
  // Writes a text with its terminating NUL or a 32-bit number (RuntimeError beyond 32 bits); any
  // other type writes nothing and returns 0.
  static ResultCode SetValueOnHandle(RegistryKey& key, const std::string& name, std::uint32_t type,
                                     const std::string& value);

  // Creates the key first if it does not exist. False when nothing could be written.
  bool SaveString(Root root, const std::string& path, const std::string& name,
                  const std::string& value);
  std::string GetString(Root root, const std::string& path, const std::string& name);
  // Reads a text, or a 32-bit number as text. Returns 0, or another code and leaves `value`.
  static ResultCode QueryValueOnHandle(RegistryKey& key, const std::string& name,
                                       std::string& value);

  // As GetString, but nothing when the settings cannot be read, which says nothing of the value.
  std::optional<std::string> ReadString(Root root, const std::string& path,
                                        const std::string& name);

  // All texts of a key by their names, as they stood at one instant; nothing when the settings
  // cannot be read.
  std::optional<SettingsTexts> GetStrings(Root root, const std::string& path);
  // Reads all texts of a key, lets `change` change them and writes them, in one step that no other
  // program's write comes between. False when nothing could be written.
  bool ChangeStrings(Root root, const std::string& path,
                     const std::function<void(SettingsTexts&)>& change);

  // In the program's own key of the user's branch.
  bool SaveUserString(const std::string& name, const std::string& value) {
    return SaveString(Root::CurrentUser, kSettingsPath, name, value);
  }
  std::string GetUserString(const std::string& name) {
    return GetString(Root::CurrentUser, kSettingsPath, name);
  }

 private:
  Registry& registry_;
};

}  // namespace benevix
