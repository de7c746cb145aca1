#include "session/budget_entry.h"

#include "base/format.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "session/hints.h"
#include "session/totals.h"

namespace benevix {

void BudgetEntry::Enter() {
  TextBox& box = main_.Text1[0];
  const auto typed = ParseNumber(box.text);
  if (!box.typed || !typed) return;
  Currency balance;
  try {
    const Currency budget = values_.Budget + Currency::FromWhole(ToInt32(*typed));
    balance = budget - values_.TotalDonated;
    values_.Budget = budget;
  } catch (const RuntimeError&) {
    return;  // beyond a whole number, or beyond all money
  }
  if (values_.Budget == Currency()) return;

  if (ConfirmsLargeBudget()) {
    if (values_.TotalDonated == Currency()) choosePayment_();
    values_.BudgetEntered = values_.Budget;
    values_.Balance = balance;
    main_.Label8.caption = values_.Balance.ToText();
    box.fontSize = 9;
    box.fontBold = true;
    box.backColor = colors::kLightGrey;
    main_.Text1[1].backColor = colors::kBalanceGround;
    ShowHint(main_, hint::kSelectFirst);
  }
  method73(values_, main_, desk_);
  main_.Label8.visible = false;
}

bool BudgetEntry::ConfirmsLargeBudget() {
  constexpr Currency large = Currency::FromWhole(9999);
  if (values_.Budget < large) return true;
  const BoxAnswer answer = messages_.Show(
      "Alert! ", "You have entered a very large amount of money. Are you sure this is correct",
      BoxIcon::Question, BoxButtons::YesNo);
  if (answer == BoxAnswer::Yes) return true;
  if (values_.TotalDonated <= Currency()) {
    main_.Text1[0].Write("");
    main_.Text1[1].Write("");
    values_.Budget = Currency();
  } else {
    main_.Text1[0].Write(values_.TotalDonated.ToText());
    values_.Budget = values_.TotalDonated;
    main_.Text1[1].Write("0");
    values_.Balance = Currency();
  }
  return false;
}

}  // namespace benevix
