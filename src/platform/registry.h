#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace benevix {

enum class Root { CurrentUser, LocalMachine };
enum class Access { Query, SetValue, Full };

// Value types, numbered as a registry numbers them.
namespace value_type {
inline constexpr std::uint32_t kText = 1;
inline constexpr std::uint32_t kBinary = 3;
inline constexpr std::uint32_t kNumber = 4;
}  // namespace value_type

// 0 is success; any other code a failure.
using ResultCode = long;
inline constexpr ResultCode kFailed = -1;

// An open key; closed when it goes.
class RegistryKey {
 public:
  virtual ~RegistryKey() = default;
  // `bytes` as they are stored: a text with its closing NUL, a number as 4 bytes, lowest first. The
  // empty name is the default value.
  virtual ResultCode Write(const std::string& name, std::uint32_t type,
                           const std::string& bytes) = 0;
  virtual ResultCode Read(const std::string& name, std::uint32_t& type, std::string& bytes) = 0;
  virtual ResultCode Delete(const std::string& name) = 0;
};

// The system's registry of settings, or a settings file with the same keys, names, branches and
// types. Nothing here raises an error: a key that cannot be had is null.
class Registry {
 public:
  virtual ~Registry() = default;
  virtual std::unique_ptr<RegistryKey> OpenKey(Root root, const std::string& path,
                                               Access access) = 0;
  virtual std::unique_ptr<RegistryKey> CreateKey(Root root, const std::string& path) = 0;
  // The key with all its values.
  virtual ResultCode DeleteKey(Root root, const std::string& path) = 0;
};

}  // namespace benevix
