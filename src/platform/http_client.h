#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace benevix {

inline constexpr std::size_t kResponseLimit = std::size_t{64} << 20;  // bytes
inline constexpr std::size_t kDownloadLimit = std::size_t{1} << 30;   // bytes

struct HttpOptions {
  std::string proxy = {};              // host:port; empty for the desktop's
  int timeout = 5;                     // seconds without a byte received; below 1 counts as 5
  std::size_t limit = kResponseLimit;  // bytes
  bool needsOk = false;  // a response with a status other than 200 is returned as empty
  std::string purpose = "Contacting the server...";  // told to the user while he waits
  // Called once when the response is not complete after a moment. Raises nothing.
  std::function<void()> onSlow = {};
  // Called for each chunk received, with bytes; `total` is 0 when the server does not tell.
  std::function<void(std::size_t received, std::size_t total)> progress = {};
};

// Synchronous GET requests, one at a time.
class HttpClient {
 public:
  virtual ~HttpClient() = default;

  // Returns the response body, whatever the status. Characters of `address` that are not allowed in
  // a request line are percent-encoded. A response larger than `limit` is aborted and returned as
  // empty, which no caller accepts. Raises RuntimeError without a complete response: no connection,
  // connection closed, timeout.
  virtual std::string OpenURL(const std::string& address, const HttpOptions& options) = 0;
};

}  // namespace benevix
