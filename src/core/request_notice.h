#pragma once

#include <string>

#include "controls/desk.h"
#include "platform/http_client.h"
#include "platform/waits.h"

namespace benevix {

// Makes the requests of the whole program and tells on the desk what they are for, as soon as one
// takes longer than a moment. The windows then show it, and the pointer is busy.
class RequestNotice : public HttpClient {
 public:
  RequestNotice(HttpClient& client, Desk& desk, Waits& waits)
      : client_(client), desk_(desk), waits_(waits) {}

  std::string OpenURL(const std::string& address, const HttpOptions& options) override;

  // The user's action is over: the next one begins without a notice.
  void EndAction() { slow_ = false; }

 private:
  HttpClient& client_;
  Desk& desk_;
  Waits& waits_;
  bool slow_ = false;  // a request of this action was; the next one is told of at once
};

}  // namespace benevix
