#pragma once

#include <functional>

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "forms/frmPayOpt.h"

namespace benevix {

// The payment options window. The hidden window keeps the choice until the program ends.
class PaymentOptions {
 public:
  struct Callbacks {
    std::function<void()> finalize;                             // if a Continue was waiting
    std::function<void(const std::string& page)> showHelpPage;  // a page of the Resources folder
  };

  PaymentOptions(frmPayOpt& window, frmBVX& main, Desk& desk, Callbacks callbacks)
      : window_(window), main_(main), desk_(desk), callbacks_(std::move(callbacks)) {}

  [[nodiscard]] bool IsChosen() const { return Chosen(window_.Option1) >= 0; }
  // At the first Budget entry: asks unless a method is chosen; disables the main window.
  void AskOnce();
  // Asks, also when a method is chosen.
  void Ask();
  // Change Payment Method: asks, and a Continue that still waits is not carried out any more.
  void mnuChgPayMethod_Click();

  void Option1_Click();
  void Command1_Click(int index);
  // Closed without a choice: a waiting Continue is cancelled.
  void Form_Unload();

 private:
  void Continue();

  frmPayOpt& window_;
  frmBVX& main_;
  Desk& desk_;
  Callbacks callbacks_;
};

}  // namespace benevix
