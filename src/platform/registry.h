#pragma once

#include <cstdint>
#include <memory>
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

// An open key, closed by its destructor.
class RegistryKey {
 public:
  virtual ~RegistryKey() = default;
  // `bytes` is the value as stored: a text with its terminating NUL, a number as 4 bytes in little
  // endian. The empty name is the key's default value.
  virtual ResultCode Write(const std::string& name, std::uint32_t type,
                           const std::string& bytes) = 0;
  virtual ResultCode Read(const std::string& name, std::uint32_t& type, std::string& bytes) = 0;
  virtual ResultCode Delete(const std::string& name) = 0;
};

// A system's settings registry, or a settings file with the same roots, keys, names and types.
// Raises no errors: a key that cannot be opened or created is null.
class Registry {
 public:
  virtual ~Registry() = default;
  virtual std::unique_ptr<RegistryKey> OpenKey(Root root, const std::string& path,
                                               Access access) = 0;
  virtual std::unique_ptr<RegistryKey> CreateKey(Root root, const std::string& path) = 0;
  // Deletes the key with all its values.
  virtual ResultCode DeleteKey(Root root, const std::string& path) = 0;
};

}  // namespace benevix
