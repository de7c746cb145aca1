#include "base/web_address.h"

#include <string>

#include "base/text.h"

namespace benevix {
namespace {

constexpr std::string_view kHttp = "http://";
constexpr std::string_view kHttps = "https://";

// The beginning of the address that tells its scheme, in lower case.
std::string Head(std::string_view address) {
  return LowerCase(std::string(address.substr(0, kHttps.size())));
}

// The host behind "http://", without a user's name before it and a port behind it.
std::string HostOf(std::string_view address) {
  address.remove_prefix(kHttp.size());
  address = address.substr(0, address.find_first_of("/\\?#"));
  address.remove_prefix(address.rfind('@') + 1);
  const bool isBracketed = address.starts_with('[');
  const auto end = isBracketed ? address.find(']') + 1 : address.find(':');
  return LowerCase(std::string(address.substr(0, end)));
}

}  // namespace

bool IsProtected(std::string_view address) {
  const std::string head = Head(address);
  if (head == kHttps) return true;
  if (!head.starts_with(kHttp)) return false;
  const std::string host = HostOf(address);
  return host == "localhost" || host == "127.0.0.1" || host == "[::1]";
}

bool IsWebAddress(std::string_view address) {
  const std::string head = Head(address);
  return head == kHttps || head.starts_with(kHttp);
}

}  // namespace benevix
