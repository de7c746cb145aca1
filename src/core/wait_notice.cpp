#include "core/wait_notice.h"

#include <algorithm>

namespace benevix {

WaitNotice::WaitNotice(const WaitWindow& window) : window_(window) {
  frmWait& form = window_.form;
  window_.desk.Load(form);
  form.caption = "Contacting Remote Server";
  form.Label2.caption = frmWait().Label2.caption;
  form.ProgressBar1 = ProgressBar();
  form.Command1.visible = true;
  window_.desk.Show(form);
}

std::function<void(std::size_t received, std::size_t total)> WaitNotice::Progress() {
  return [this](std::size_t received, std::size_t total) { MoveBar(received, total); };
}

void WaitNotice::MoveBar(std::size_t received, std::size_t total) {
  constexpr int full = 100;
  if (total == 0) return;
  ProgressBar& bar = window_.form.ProgressBar1;
  const auto value = static_cast<int>(static_cast<double>(std::min(received, total)) /
                                      static_cast<double>(total) * full);
  if (bar.max == full && bar.value == value) return;
  bar.max = full;
  bar.value = value;
  const WaitScope redraw(window_.waits);  // updates the widgets
}

}  // namespace benevix
