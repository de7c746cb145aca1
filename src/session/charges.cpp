#include "session/charges.h"

#include <algorithm>
#include <array>

#include "base/format.h"
#include "base/runtime_error.h"
#include "session/payment_amount.h"
#include "session/totals.h"

namespace benevix {
namespace {

// By payment method.
constexpr std::array kMethodFees = {"Card fees", "Transfer fees", "e-check fee"};

std::string Money(Currency amount) {
  return Format(amount, kSumPattern);
}

std::string FeesText(std::size_t option, const Charge& charge) {
  std::string text = "Service fees " + Money(charge.serviceFees);
  if (charge.methodFee != Currency()) {
    text += std::string(", ") + kMethodFees[option] + " " + Money(charge.methodFee);
  }
  if (charge.rounding != Currency()) text += ", rounding " + Money(charge.rounding);
  return text;
}

// What a payment method costs: "2.9 % + 0.30", "5.00 a session" or "no fee".
std::string CostText(int option, const FeeRates& rates) {
  const Currency none;
  const bool isCharged = Payee(rates, option) == rates.RatesField6;
  if (isCharged && option == payment::kCreditCard) {
    const Currency rate = rates.PublishedCardRate, fixed = rates.PublishedCardFixed;
    std::string text = rate == none ? "" : rate.ToText() + " %";
    if (fixed != none) text += (text.empty() ? "" : " + ") + Money(fixed);
    if (!text.empty()) return text;
  } else if (isCharged && rates.SessionFee != none) {
    return Money(rates.SessionFee) + " a session";
  }
  return "no fee";
}

}  // namespace

Charge ChargeWith(int option, const SessionValues& values, const FeeRates& rates,
                  Currency serviceFees, bool roundUp) {
  FeeRates published = rates;
  published.CardRate = rates.PublishedCardRate;
  published.CardFixed = rates.PublishedCardFixed;
  const auto amount = [&](bool rounded) {
    return Currency::FromText(PaymentAmount(values, published, serviceFees, option, rounded));
  };
  Charge charge;
  charge.amount = amount(roundUp);
  charge.serviceFees = serviceFees;
  if (roundUp) charge.rounding = charge.amount - amount(false);
  charge.methodFee = charge.amount - charge.rounding - values.TotalDonated - serviceFees;
  return charge;
}

void Charges::TakeTotals() {
  const ListView& list = main_.ListView1;
  if (totals_.loads == list.loads && totals_.changes == list.changes) return;
  totals_ = {list.loads, list.changes, ServiceFeeTotal(list), CardFeeTotal(list)};
}

void Charges::Show() {
  ByMethod charges;
  try {
    TakeTotals();
    if (values_.TotalDonated != Currency()) {
      for (int option = 0; auto& charge : charges) {
        charge = ChargeWith(option++, values_, rates_, totals_.service, main_.mnuRound.checked);
      }
    }
    ShowBudgetUse(charges);
  } catch (const RuntimeError&) {
    charges = {};
    main_.BudgetUse = MoneyBar();
  }
  for (std::size_t option = 0; option < charges.size(); ++option) {
    ShowCharge(option, charges[option]);
  }
}

PaymentDue Charges::Due() const {
  const int method = ChosenMethod();
  const ListView& list = main_.ListView1;
  return {Payee(rates_, method),
          PaymentAmount(values_, rates_, ServiceFeeTotal(list), method, main_.mnuRound.checked),
          values_.Budget, ChargedTotal(values_, rates_, list, method, main_.mnuAddFees.checked)};
}

// Fees that are added to the Budget come after the Balance in the bar. Deducted ones are named for
// what they are: taken already, whatever method is chosen in the end and whatever it will charge.
void Charges::ShowBudgetUse(const ByMethod& charges) {
  using Part = MoneyBar::Part;
  MoneyBar& bar = main_.BudgetUse;
  bar = MoneyBar();
  const int method = ChosenMethod();
  // A part of 0.00 would look as if something were missing.
  const bool allGiven = IsAllGiven(values_);
  const auto addLeft = [&] {
    if (!allGiven) bar.parts.push_back({Part::Use::Left, "Left", values_.Balance});
  };
  bar.parts.push_back({Part::Use::Given, allGiven ? "All given:" : "Given", values_.TotalDonated});
  if (main_.mnuDeductFees.checked) {
    bar.parts.push_back({Part::Use::ServiceFees, "Service fees", totals_.service});
    if (totals_.card != Currency()) {
      bar.parts.push_back({Part::Use::MethodFee, "Card fees taken", totals_.card});
    }
    if (values_.SessionFeeTaken) {
      bar.parts.push_back({Part::Use::MethodFee, "e-check fee taken", rates_.SessionFee});
    }
    addLeft();
  } else {
    const auto named = static_cast<std::size_t>(std::max(method, 0));
    const Currency fee = method >= 0 && charges[named] ? charges[named]->methodFee : Currency();
    addLeft();
    bar.parts.push_back({Part::Use::ServiceFees, "Service fees", totals_.service});
    bar.parts.push_back({Part::Use::MethodFee, kMethodFees[named], fee});
  }
  bar.toolTip = "Budget " + Money(values_.Budget);
  for (const Part& part : bar.parts) bar.toolTip += ", " + part.caption + " " + Money(part.amount);
  if (method >= 0 && charges[static_cast<std::size_t>(method)]) {
    CompareWithCharge(charges[static_cast<std::size_t>(method)]->amount);
  }
}

void Charges::CompareWithCharge(Currency charge) {
  MoneyBar& bar = main_.BudgetUse;
  if (main_.mnuDeductFees.checked) {
    Currency difference = charge + values_.Balance - values_.Budget;
    const bool more = difference > Currency();
    if (!more) difference = Currency() - difference;
    bar.toolTip += ". " + main_.ChargeName[static_cast<std::size_t>(ChosenMethod())].caption +
                   ": " + Money(charge);
    if (difference != Currency()) {
      bar.toolTip += ", " + Money(difference) + (more ? " more" : " less") + " than was taken";
    }
  }
  if (charge > values_.Budget) {
    bar.remark = Money(charge - values_.Budget) + " over the Budget";
    bar.toolTip += ", " + bar.remark;
  }
}

void Charges::ShowCharge(std::size_t option, const std::optional<Charge>& charge) {
  const std::string amount = charge ? Money(charge->amount) : "";
  const std::string fees =
      charge ? FeesText(option, *charge) : CostText(static_cast<int>(option), rates_);
  const bool chosen = payment_.Option1[option].value;
  main_.ChargeAmount[option].caption = amount;
  main_.ChargeAmount[option].foreColor = chosen ? colors::kAccent : Label().foreColor;
  main_.ChargeFees[option].caption = fees;
  payment_.ChargeAmount[option].caption = amount;
  payment_.ChargeAmount[option].visible = charge.has_value();
  payment_.ChargeFees[option].caption = fees;
}

}  // namespace benevix
