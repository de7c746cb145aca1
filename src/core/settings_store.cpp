#include "core/settings_store.h"

#include "base/number_text.h"

namespace benevix {
namespace {

// Numbers and bytes are no texts.
SettingsTexts TextsOf(const RegistryValues& values) {
  SettingsTexts texts;
  for (const auto& [name, value] : values) {
    if (value.type != value_type::kText || value.bytes.empty()) continue;
    texts[name] = value.bytes.substr(0, value.bytes.size() - 1);
  }
  return texts;
}

}  // namespace

void SettingsStore::CreateKey(Root root, const std::string& path) {
  registry_.CreateKey(root, path);
}

bool SettingsStore::SetValue(Root root, const std::string& path, const std::string& name,
                             std::uint32_t type, const std::string& value) {
  const auto key = registry_.OpenKey(root, path, Access::SetValue);
  return key && SetValueOnHandle(*key, name, type, value) == 0;
}

ResultCode SettingsStore::SetValueOnHandle(RegistryKey& key, const std::string& name,
                                           std::uint32_t type, const std::string& value) {
  if (type == value_type::kText) return key.Write(name, type, value + '\0');
  if (type != value_type::kNumber) return 0;
  const auto number = static_cast<std::uint32_t>(ToInt32(Val(value)));
  std::string bytes;
  for (unsigned shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift);
  return key.Write(name, type, bytes);
}

bool SettingsStore::SaveString(Root root, const std::string& path, const std::string& name,
                               const std::string& value) {
  if (!registry_.OpenKey(root, path, Access::Full)) CreateKey(root, path);
  return SetValue(root, path, name, value_type::kText, value);
}

std::string SettingsStore::GetString(Root root, const std::string& path, const std::string& name) {
  return ReadString(root, path, name).value_or("");
}

std::optional<std::string> SettingsStore::ReadString(Root root, const std::string& path,
                                                     const std::string& name) {
  std::string value;
  const auto key = registry_.OpenKey(root, path, Access::Query);
  if (key && QueryValueOnHandle(*key, name, value) == kUnreadable) return std::nullopt;
  return value;
}

std::optional<SettingsTexts> SettingsStore::GetStrings(Root root, const std::string& path) {
  const auto values = registry_.ReadValues(root, path);
  if (!values) return std::nullopt;
  return TextsOf(*values);
}

bool SettingsStore::ChangeStrings(Root root, const std::string& path,
                                  const std::function<void(SettingsTexts&)>& change) {
  return registry_.ChangeValues(root, path, [&](RegistryValues& values) {
    const SettingsTexts old = TextsOf(values);
    SettingsTexts texts = old;
    change(texts);
    for (const auto& [name, text] : old) {
      if (!texts.contains(name)) values.erase(name);
    }
    for (const auto& [name, text] : texts) {
      const auto known = old.find(name);
      if (known == old.end() || known->second != text) {
        values[name] = {value_type::kText, text + '\0'};
      }
    }
  }) == 0;
}

ResultCode SettingsStore::QueryValueOnHandle(RegistryKey& key, const std::string& name,
                                             std::string& value) {
  std::uint32_t type = 0;
  std::string bytes;
  const ResultCode code = key.Read(name, type, bytes);
  if (code != 0) return code;
  if (type == value_type::kText) {
    value = bytes.substr(0, bytes.empty() ? 0 : bytes.size() - 1);
    return 0;
  }
  if (type != value_type::kNumber || bytes.size() != 4) return -1;
  std::uint32_t number = 0;
  for (int i = 3; i >= 0; --i) {
    number = (number << 8) | static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]);
  }
  value = std::to_string(static_cast<std::int32_t>(number));
  return 0;
}

}  // namespace benevix
