#include "core/wait_notice.h"

#include <algorithm>

namespace benevix {

WaitNotice::WaitNotice(frmWait& window, Desk& desk, Waits& waits)
    : window_(window), desk_(desk), waits_(waits) {
  desk_.Load(window_);
  window_.caption = "Contacting Remote Server";
  window_.Label2.caption = "Retrieving Information. Please wait...";
  window_.ProgressBar1 = ProgressBar();
  desk_.Show(window_);
}

std::function<void(std::size_t received, std::size_t total)> WaitNotice::Progress() {
  return [this](std::size_t received, std::size_t total) { Move(received, total); };
}

void WaitNotice::Move(std::size_t received, std::size_t total) {
  constexpr int whole = 100;
  if (total == 0) return;
  ProgressBar& bar = window_.ProgressBar1;
  const auto value = static_cast<int>(static_cast<double>(std::min(received, total)) /
                                      static_cast<double>(total) * whole);
  if (bar.max == whole && bar.value == value) return;
  bar.max = whole;
  bar.value = value;
  const WaitScope seen(waits_);  // the windows are brought into line
}

}  // namespace benevix
