#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace benevix {

inline constexpr std::size_t kSmallLimit = std::size_t{64} << 10;     // bytes; a line of text
inline constexpr std::size_t kResponseLimit = std::size_t{64} << 20;  // bytes
inline constexpr std::size_t kDownloadLimit = std::size_t{1} << 30;   // bytes

// How many time-outs a request may last in all, however it dribbles in.
inline constexpr int kTimeoutsInAll = 6;

struct HttpOptions {
  std::string proxy = {};              // host:port; empty for the desktop's
  int timeout = 5;                     // seconds without a byte received; below 1 counts as 5
  bool isLong = false;                 // goes on for as long as bytes come
  std::size_t limit = kResponseLimit;  // bytes
  bool needsOk = false;  // a response with a status other than 200 is returned as empty
  std::string purpose = "Contacting the server...";  // told to the user while he waits
  // Called with each address before it is asked, those of redirects too; may raise RuntimeError,
  // which ends the request.
  std::function<void(const std::string& address)> onAddress = {};
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
  // connection closed, timeout, cancelled.
  virtual std::string OpenURL(const std::string& address, const HttpOptions& options) = 0;

  // Ends the request under way, if there is one, from within its callbacks or the event loop that
  // it waits in: its OpenURL raises RuntimeError.
  virtual void Cancel() = 0;
};

}  // namespace benevix
