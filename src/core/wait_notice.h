#pragma once

#include <cstddef>
#include <functional>

#include "controls/desk.h"
#include "forms/frmWait.h"
#include "platform/waits.h"

namespace benevix {

// The please-wait window and what it takes to show it.
struct WaitWindow {
  frmWait& form;
  Desk& desk;
  Waits& waits;
};

// Shows the please-wait window as long as this object lives.
class WaitNotice {
 public:
  explicit WaitNotice(const WaitWindow& window);
  ~WaitNotice() { window_.desk.Unload(window_.form); }
  WaitNotice(const WaitNotice&) = delete;
  WaitNotice& operator=(const WaitNotice&) = delete;

  // The progress callback for a request; it moves the bar.
  [[nodiscard]] std::function<void(std::size_t received, std::size_t total)> Progress();

 private:
  void MoveBar(std::size_t received, std::size_t total);

  WaitWindow window_;
};

}  // namespace benevix
