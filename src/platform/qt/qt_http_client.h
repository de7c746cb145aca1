#pragma once

#include "platform/http_client.h"
#include "platform/waits.h"

class QUrl;

namespace benevix {

// HTTP/1.1 over the toolkit's network classes, which run in the event loop of the calling thread
// until the answer is there. Every request stands alone: no cache, no cookies, no connection kept,
// no proxy but the one given, and never sent twice, since some of them send mail. Redirects are
// followed to http and https only, ten at most.
class QtHttpClient : public HttpClient {
 public:
  explicit QtHttpClient(Waits& waits) : waits_(waits) {}

  // Errors read "<host>: <reason>".
  std::string OpenURL(const std::string& address, const HttpOptions& options) override;

 private:
  Waits& waits_;
};

}  // namespace benevix
