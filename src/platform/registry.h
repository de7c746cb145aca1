#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace benevix {

enum class Root { CurrentUser, LocalMachine };
enum class Access { Query, SetValue, Full };

// Value types, with the numbers that a system registry gives them.
namespace value_type {
inline constexpr std::uint32_t kText = 1;
inline constexpr std::uint32_t kBinary = 3;
inline constexpr std::uint32_t kNumber = 4;
}  // namespace value_type

// 0 is success, anything else a failure.
using ResultCode = long;
inline constexpr ResultCode kFailed = -1;
// The settings themselves cannot be read, so nobody knows whether a key or value is there.
inline constexpr ResultCode kUnreadable = -2;

// A value as stored: a text with its terminating NUL, a number as 4 bytes in little endian.
struct RegistryValue {
  std::uint32_t type = 0;
  std::string bytes;
  bool operator==(const RegistryValue&) const = default;
};
// The values of a key by their names; the empty name is the key's default value.
using RegistryValues = std::map<std::string, RegistryValue>;

// An open key, closed by its destructor.
class RegistryKey {
 public:
  virtual ~RegistryKey() = default;
  // `bytes` as in RegistryValue. The empty name is the key's default value.
  virtual ResultCode Write(const std::string& name, std::uint32_t type,
                           const std::string& bytes) = 0;
  virtual ResultCode Read(const std::string& name, std::uint32_t& type, std::string& bytes) = 0;
  virtual ResultCode Delete(const std::string& name) = 0;
};

// A system's settings registry, or a settings file with the same roots, keys, names and types.
// Raises no errors: a key that cannot be opened or created is null. A key of unreadable settings is
// opened for Query, and its Read gives kUnreadable.
class Registry {
 public:
  virtual ~Registry() = default;
  virtual std::unique_ptr<RegistryKey> OpenKey(Root root, const std::string& path,
                                               Access access) = 0;
  virtual std::unique_ptr<RegistryKey> CreateKey(Root root, const std::string& path) = 0;
  // Deletes the key with all its values.
  virtual ResultCode DeleteKey(Root root, const std::string& path) = 0;

  // All values of a key as they stood at one instant, none without such a key; nothing when the
  // settings cannot be read.
  virtual std::optional<RegistryValues> ReadValues(Root root, const std::string& path) = 0;
  // Reads all values of a key, lets `change` change them and writes what differs, in one step that
  // no other program's write comes between. Creates a missing key.
  virtual ResultCode ChangeValues(Root root, const std::string& path,
                                  const std::function<void(RegistryValues&)>& change) = 0;
};

}  // namespace benevix
