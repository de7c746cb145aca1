#include "core/request_notice.h"

#include "base/runtime_error.h"

namespace benevix {
namespace {

// A request is under way on the desk as long as this object lives.
class Underway {
 public:
  Underway(Desk& desk, Button& cancel) : desk_(desk), cancel_(cancel) { desk_.SetRequesting(true); }
  ~Underway() {
    desk_.SetRequesting(false);
    Tell({});
  }
  Underway(const Underway&) = delete;
  Underway& operator=(const Underway&) = delete;

  void Tell(const std::string& activity) {
    desk_.SetActivity(activity);
    cancel_.visible = !activity.empty();
  }

 private:
  Desk& desk_;
  Button& cancel_;
};

}  // namespace

std::string RequestNotice::OpenURL(const std::string& address, const HttpOptions& options) {
  if (cancelled_) throw RuntimeError("cancelled");
  Underway underway(desk_, cancel_);
  const std::string activity = options.purpose + " (Esc cancels)";
  if (slow_) underway.Tell(activity);
  HttpOptions told = options;
  told.onSlow = [&] {
    slow_ = true;
    underway.Tell(activity);
    const WaitScope redraw(waits_);  // updates the widgets
  };
  try {
    return client_.OpenURL(address, told);
  } catch (const RuntimeError&) {
    if (desk_.Ended()) throw ProgramEnded();
    throw;
  }
}

void RequestNotice::Cancel() {
  if (!desk_.IsRequesting()) return;
  cancelled_ = true;
  client_.Cancel();
}

}  // namespace benevix
