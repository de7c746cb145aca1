#pragma once

#include <array>
#include <optional>
#include <string>

#include "forms/frmBVX.h"
#include "forms/frmPayOpt.h"
#include "session/session_values.h"

namespace benevix {

// What would be paid with one payment method.
struct Charge {
  Currency amount;
  Currency serviceFees;  // part of the amount
  Currency methodFee;    // card fee, charge for e-checks
  Currency rounding;     // up to whole dollars, when asked for
};

// The session as it stands, paid with the method, by the rates that the server published. Raises
// RuntimeError on overflow.
Charge ChargeWith(int option, const SessionValues& values, const FeeRates& rates,
                  Currency serviceFees, bool roundUp);

// What a session comes to when it is paid with the chosen method.
struct PaymentDue {
  std::string payee;
  std::string amountText;  // as the payment page gets it
  Currency budget;
  Currency charged;  // Budget plus the fees that the user pays
};

// Shows, before anything is finalized, how the Budget is used and what each payment method would
// charge. All of it follows from the session; nothing is kept.
class Charges {
 public:
  Charges(frmBVX& main, frmPayOpt& payment, const SessionValues& values, const FeeRates& rates)
      : main_(main), payment_(payment), values_(values), rates_(rates) {}

  // Brings both windows into line with the session; with sums beyond their type they show nothing.
  void Show();

  // A constant of `payment`, or -1 while none is chosen.
  [[nodiscard]] int ChosenMethod() const { return Chosen(payment_.Option1); }
  // By the rates as they are now. Raises RuntimeError on overflow.
  [[nodiscard]] PaymentDue Due() const;

 private:
  using ByMethod = std::array<std::optional<Charge>, 3>;

  void ShowUse(Currency serviceFees, const ByMethod& charges);
  void ShowCharge(std::size_t option, const std::optional<Charge>& charge);

  frmBVX& main_;
  frmPayOpt& payment_;
  const SessionValues& values_;
  const FeeRates& rates_;
};

}  // namespace benevix
