#include "core/request_notice.h"

#include "base/runtime_error.h"

namespace benevix {
namespace {

// A request is under way on the desk as long as this object lives.
class Underway {
 public:
  explicit Underway(Desk& desk) : desk_(desk) { desk_.SetRequesting(true); }
  ~Underway() {
    desk_.SetRequesting(false);
    desk_.SetActivity({});
  }
  Underway(const Underway&) = delete;
  Underway& operator=(const Underway&) = delete;

 private:
  Desk& desk_;
};

}  // namespace

std::string RequestNotice::OpenURL(const std::string& address, const HttpOptions& options) {
  if (cancelled_) throw RuntimeError("cancelled");
  const Underway underway(desk_);
  const std::string activity = options.purpose + " (Esc cancels)";
  if (slow_) desk_.SetActivity(activity);
  HttpOptions told = options;
  told.onSlow = [&] {
    slow_ = true;
    desk_.SetActivity(activity);
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
