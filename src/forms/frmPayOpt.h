#pragma once

#include "controls/controls.h"

namespace benevix {

namespace payment {  // Option1
inline constexpr int kCreditCard = 0;
inline constexpr int kFundsTransfer = 1;
inline constexpr int kECheck = 2;
}  // namespace payment

// Asks for the payment method of the session.
struct frmPayOpt : Window {
  static constexpr const char* kName = "frmPayOpt";

  frmPayOpt() {
    caption = " Payment Options";
    topmost = true;
    Command1[0].enabled = false;
    Command1[0].shortcut = kEnterShortcut;
    Command1[1].shortcut = "F1";
  }

  Label Label1{
      "What form of payment would you like to use for this session?              For more "
      "information press the Help button."};
  OptionButton Option1[3] = {
      OptionButton("Credit Card",
                   "Debited from Credit Card - Fees Apply - - Press Help for more info"),
      OptionButton("Funds Transfer",
                   "Founds Transfer from available funds on your account - Press Help for more "
                   "info"),
      OptionButton("e-check",
                   "Transfer from your Bank account - Fees apply - Press Help for more info")};
  // What each method would charge and, before the first donation, costs.
  Label ChargeAmount[3], ChargeFees[3];
  Button Command1[2] = {Button("&Continue"), Button("&Help")};
};

template <class F>
void visit(frmPayOpt& window, F&& f) {
  f("Label1", window.Label1);
  f("Option1", window.Option1);
  f("ChargeAmount", window.ChargeAmount);
  f("ChargeFees", window.ChargeFees);
  f("Command1", window.Command1);
}

}  // namespace benevix
