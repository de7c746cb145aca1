#pragma once

#include <cstddef>
#include <functional>

#include "controls/desk.h"
#include "forms/frmWait.h"
#include "platform/waits.h"

namespace benevix {

// The please-wait window, and what brings it to the screen.
struct WaitWindow {
  frmWait& form;
  Desk& desk;
  Waits& waits;
};

// Shows the please-wait window while a long request runs; it goes with this object.
class WaitNotice {
 public:
  explicit WaitNotice(const WaitWindow& window);
  ~WaitNotice() { window_.desk.Unload(window_.form); }
  WaitNotice(const WaitNotice&) = delete;
  WaitNotice& operator=(const WaitNotice&) = delete;

  // What a request is to tell its progress: its bytes move the bar.
  [[nodiscard]] std::function<void(std::size_t received, std::size_t total)> Progress();

 private:
  void Move(std::size_t received, std::size_t total);

  WaitWindow window_;
};

}  // namespace benevix
