#pragma once

#include <functional>

#include "platform/http_client.h"
#include "platform/waits.h"

namespace benevix {

// HTTP/1.1 with Qt's network classes, in an event loop of the calling thread until the response is
// complete. Requests are independent: no cache, cookies or persistent connections, and no proxy but
// the given one. They are never retried, as some of them send mail. Follows up to ten redirects, to
// http and https only, and never from https to http.
class QtHttpClient : public HttpClient {
 public:
  explicit QtHttpClient(Waits& waits) : waits_(waits) {}

  // Errors read "<host>: <reason>".
  std::string OpenURL(const std::string& address, const HttpOptions& options) override;
  void Cancel() override { cancel_(); }

 private:
  Waits& waits_;
  std::function<void()> cancel_ = [] {};
};

}  // namespace benevix
