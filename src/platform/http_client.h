#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace benevix {

inline constexpr std::size_t kAnswerLimit = std::size_t{64} << 20;   // bytes
inline constexpr std::size_t kDownloadLimit = std::size_t{1} << 30;  // bytes

struct HttpOptions {
  std::string proxy;  // host:port, empty for none
  int timeout = 5;    // seconds without a byte received; below 1 counts as 5
  std::size_t limit = kAnswerLimit;
  bool needsOk = false;  // an answer of another status than 200 comes back empty
  // Called while the answer comes in; total is 0 while it is not known.
  std::function<void(std::size_t received, std::size_t total)> progress;
};

// One synchronous GET request at a time.
class HttpClient {
 public:
  virtual ~HttpClient() = default;

  // The whole answer, whatever its status. `address` is taken as built; what may not stand in a
  // request line is percent-encoded on its way out. An answer above the limit is cut off and comes
  // back empty, which no caller takes for an answer. Raises RuntimeError when no answer comes: no
  // connection, closed, time-out.
  virtual std::string OpenURL(const std::string& address, const HttpOptions& options) = 0;
};

}  // namespace benevix
