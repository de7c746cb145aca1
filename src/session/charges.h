#pragma once

#include <array>
#include <optional>
#include <string>

#include "forms/frmBVX.h"
#include "forms/frmPayOpt.h"
#include "session/session_values.h"

namespace benevix {

// What one payment method would charge.
struct Charge {
  Currency amount;
  Currency serviceFees;  // part of the amount
  Currency methodFee;    // part of the amount: card fee or e-check fee
  Currency rounding;     // part of the amount: up to whole dollars, if requested
};

// What a payment method (a constant of `payment`) would charge for the session, at the rates that
// the server published. Raises RuntimeError on overflow.
Charge ChargeWith(int option, const SessionValues& values, const FeeRates& rates,
                  Currency serviceFees, bool roundUp);

// What is due for a session with the chosen payment method.
struct PaymentDue {
  std::string payee;
  std::string amountText;  // as sent to the payment page
  Currency budget;
  Currency charged;  // Budget plus the fees that the user pays
};

// Shows, before anything is finalized, how the Budget is used and what each payment method would
// charge. All of it is derived from the session.
class Charges {
 public:
  Charges(frmBVX& main, frmPayOpt& payment, const SessionValues& values, const FeeRates& rates)
      : main_(main), payment_(payment), values_(values), rates_(rates) {}

  // Updates both windows; shows nothing if a sum overflows.
  void Show();

  // A constant of `payment`, or -1 while none is chosen.
  [[nodiscard]] int ChosenMethod() const { return Chosen(payment_.Option1); }
  // At the current rates. Raises RuntimeError on overflow.
  [[nodiscard]] PaymentDue Due() const;

 private:
  using ByMethod = std::array<std::optional<Charge>, 3>;
  // Of all rows, as long as none is written: most events write none.
  struct FeeTotals {
    int loads = 0, changes = 0;  // of the list
    Currency service, card;
  };

  // Takes the totals anew where a row was written. Raises RuntimeError on overflow.
  void TakeTotals();

  void ShowBudgetUse(const ByMethod& charges);
  // Names what the chosen method will charge where that differs from the Budget's use.
  void CompareWithCharge(Currency charge);
  void ShowCharge(std::size_t option, const std::optional<Charge>& charge);

  frmBVX& main_;
  frmPayOpt& payment_;
  const SessionValues& values_;
  const FeeRates& rates_;
  FeeTotals totals_;
};

}  // namespace benevix
