#pragma once

#include <cstddef>
#include <functional>

#include "controls/desk.h"
#include "forms/frmWait.h"
#include "platform/waits.h"

namespace benevix {

// The please-wait window while a long request runs; it goes with this object.
class WaitNotice {
 public:
  WaitNotice(frmWait& window, Desk& desk, Waits& waits);
  ~WaitNotice() { desk_.Unload(window_); }
  WaitNotice(const WaitNotice&) = delete;
  WaitNotice& operator=(const WaitNotice&) = delete;

  // What a request is to tell its progress: its bytes move the bar.
  [[nodiscard]] std::function<void(std::size_t received, std::size_t total)> Progress();

 private:
  void Move(std::size_t received, std::size_t total);

  frmWait& window_;
  Desk& desk_;
  Waits& waits_;
};

}  // namespace benevix
