#pragma once

#include <functional>

#include "controls/desk.h"
#include "core/messages.h"
#include "forms/frmBVX.h"
#include "session/session_values.h"

namespace benevix {

// The Budget box: what the user enters is added to the Budget.
class BudgetEntry {
 public:
  // `choosePayment` asks for the form of payment when none is chosen yet.
  BudgetEntry(frmBVX& main, SessionValues& values, Desk& desk, Messages& messages,
              std::function<void()> choosePayment)
      : main_(main),
        values_(values),
        desk_(desk),
        messages_(messages),
        choosePayment_(std::move(choosePayment)) {}

  // Enter or Tab in the box. A text that is not a whole number of 32 bits changes nothing.
  void Enter();

 private:
  [[nodiscard]] bool ConfirmsLargeBudget();

  frmBVX& main_;
  SessionValues& values_;
  Desk& desk_;
  Messages& messages_;
  std::function<void()> choosePayment_;
};

}  // namespace benevix
