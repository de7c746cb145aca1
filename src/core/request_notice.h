#pragma once

#include <string>

#include "controls/controls.h"
#include "controls/desk.h"
#include "platform/http_client.h"
#include "platform/waits.h"

namespace benevix {

// Makes the requests of the whole program and tells on the desk that one is under way, which the
// user may end, and what it is for, as soon as it takes longer than a moment. The windows then show
// it, with a button that ends it, and the pointer is busy.
class RequestNotice : public HttpClient {
 public:
  RequestNotice(HttpClient& client, Desk& desk, Waits& waits, Button& cancel)
      : client_(client), desk_(desk), waits_(waits), cancel_(cancel) {}

  // Raises ProgramEnded when the user has ended the program meanwhile.
  std::string OpenURL(const std::string& address, const HttpOptions& options) override;

  // The user does not want to wait: all further requests of his action fail as well, at once.
  void Cancel() override;

  // The user's action is over: the next one begins anew.
  void EndAction() { slow_ = cancelled_ = false; }

 private:
  HttpClient& client_;
  Desk& desk_;
  Waits& waits_;
  Button& cancel_;
  bool slow_ = false;  // a request of this action was; the next one is told of at once
  bool cancelled_ = false;
};

}  // namespace benevix
