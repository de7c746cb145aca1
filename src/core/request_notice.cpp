#include "core/request_notice.h"

namespace benevix {
namespace {

// Tells on the desk what is going on, at the latest until this object ends.
class Activity {
 public:
  explicit Activity(Desk& desk) : desk_(desk) {}
  ~Activity() { desk_.SetActivity({}); }
  Activity(const Activity&) = delete;
  Activity& operator=(const Activity&) = delete;

 private:
  Desk& desk_;
};

}  // namespace

std::string RequestNotice::OpenURL(const std::string& address, const HttpOptions& options) {
  const Activity activity(desk_);
  if (slow_) desk_.SetActivity(options.purpose);
  HttpOptions told = options;
  told.onSlow = [&] {
    slow_ = true;
    desk_.SetActivity(options.purpose);
    const WaitScope redraw(waits_);  // updates the widgets
  };
  return client_.OpenURL(address, told);
}

}  // namespace benevix
