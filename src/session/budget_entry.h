#pragma once

#include <functional>

#include "controls/desk.h"
#include "core/messages.h"
#include "forms/frmBVX.h"
#include "session/session_values.h"

namespace benevix {

// The Budget box: each amount entered is added to the Budget.
class BudgetEntry {
 public:
  // `choosePayment` asks for the payment method unless one is chosen.
  BudgetEntry(frmBVX& main, SessionValues& values, Desk& desk, Messages& messages,
              std::function<void()> choosePayment)
      : main_(main),
        values_(values),
        desk_(desk),
        messages_(messages),
        choosePayment_(std::move(choosePayment)) {}

  // While the user types: says what will become of cents.
  void Text1_Change();

  // Handles Enter or Tab in the box: a number is rounded to whole dollars, halves to even; a text
  // that is no number or beyond 32 bits changes only the box's note.
  void Enter();

 private:
  // Asks about a Budget of 9999 dollars or more; takes it back unless the user confirms it.
  [[nodiscard]] bool ConfirmLargeBudget();

  frmBVX& main_;
  SessionValues& values_;
  Desk& desk_;
  Messages& messages_;
  std::function<void()> choosePayment_;
};

}  // namespace benevix
