#pragma once

#include <functional>

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "forms/frmPayOpt.h"

namespace benevix {

// The payment options window. Its choice stays in the hidden window for the rest of the run.
class PaymentOptions {
 public:
  struct Follow {
    std::function<void()> finalize;                             // a Continue was waiting
    std::function<void(const std::string& page)> showHelpPage;  // a page of the Resources folder
  };

  PaymentOptions(frmPayOpt& window, frmBVX& main, Desk& desk, Follow follow)
      : window_(window), main_(main), desk_(desk), follow_(std::move(follow)) {}

  [[nodiscard]] bool IsChosen() const { return Chosen(window_.Option1) >= 0; }
  // At the first Budget entry: asks when nothing is chosen yet; the main window waits for it.
  void AskOnce();
  // The menu's Change Payment Method.
  void Ask();

  void Option1_Click();
  void Command1_Click(int index);
  // Closed by the user: nothing is chosen and no Continue waits.
  void Form_Unload();

 private:
  void Continue();

  frmPayOpt& window_;
  frmBVX& main_;
  Desk& desk_;
  Follow follow_;
};

}  // namespace benevix
