#include "player/world_settings.h"

#include "core/settings_store.h"
#include "player/script.h"

namespace benevix {
namespace {

Root RootOf(const std::string& branch) {
  return branch == "machine" ? Root::LocalMachine : Root::CurrentUser;
}

const std::string& PathOfBranch(const std::string& branch) {
  return branch == "favorites" ? kFavoritesPath : kSettingsPath;
}

}  // namespace

WorldSettings::WorldSettings(const std::string& folder)
    : writable_(files_, folder + "/user.conf", folder + "/machine.conf"),
      refusing_(files_, folder + "/user.conf", folder + "/machine.conf", false) {}

void WorldSettings::Put(const std::string& branch, const std::string& name,
                        const std::string& text) {
  const auto key = writable_.CreateKey(RootOf(branch), PathOfBranch(branch));
  if (!key || key->Write(name, value_type::kText, text + '\0') != 0) {
    throw CannotBeDone("the setting cannot be written");
  }
}

void WorldSettings::Remove(const std::string& branch, const std::string& name) {
  const auto key = writable_.OpenKey(RootOf(branch), PathOfBranch(branch), Access::Full);
  if (key) key->Delete(name);
}

std::optional<std::string> WorldSettings::Text(const std::string& branch, const std::string& name) {
  const auto key = writable_.OpenKey(RootOf(branch), PathOfBranch(branch), Access::Query);
  std::uint32_t type = 0;
  std::string bytes;
  if (!key || key->Read(name, type, bytes) != 0) return std::nullopt;
  if (type == value_type::kText) return bytes.substr(0, bytes.size() - 1);
  if (type != value_type::kNumber || bytes.size() != 4) return std::nullopt;
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) number = (number << 8) | static_cast<unsigned char>(bytes[i]);
  return std::to_string(static_cast<std::int32_t>(number));
}

std::unique_ptr<RegistryKey> WorldSettings::OpenKey(Root root, const std::string& path,
                                                    Access access) {
  return ForProgram().OpenKey(root, path, access);
}

std::unique_ptr<RegistryKey> WorldSettings::CreateKey(Root root, const std::string& path) {
  return ForProgram().CreateKey(root, path);
}

ResultCode WorldSettings::DeleteKey(Root root, const std::string& path) {
  return ForProgram().DeleteKey(root, path);
}

std::optional<RegistryValues> WorldSettings::ReadValues(Root root, const std::string& path) {
  return ForProgram().ReadValues(root, path);
}

ResultCode WorldSettings::ChangeValues(Root root, const std::string& path,
                                       const std::function<void(RegistryValues&)>& change) {
  return ForProgram().ChangeValues(root, path, change);
}

}  // namespace benevix
