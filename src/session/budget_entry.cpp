#include "session/budget_entry.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "session/totals.h"

namespace benevix {

void BudgetEntry::Enter() {
  TextBox& box = main_.Text1[money_box::kBudget];
  const auto typed = ParseNumber(box.text);
  if (!box.typed || !typed) return;
  Currency balance;
  try {
    const Currency budget = values_.Budget + Currency::FromWhole(ToInt32(*typed));
    balance = budget - values_.TotalDonated;
    values_.Budget = budget;
  } catch (const RuntimeError&) {
    return;  // beyond 32 bits or the range of money
  }
  if (values_.Budget == Currency()) return;

  if (ConfirmLargeBudget()) {
    if (values_.TotalDonated == Currency()) choosePayment_();
    values_.BudgetEntered = values_.Budget;
    values_.Balance = balance;
    main_.Label8.caption = values_.Balance.ToText();
    MarkBudgetAccepted(main_);
    main_.Text1[money_box::kBalance].backColor = colors::kBalanceGround;
  }
  method73(values_, main_, desk_);
  main_.Label8.visible = false;
}

bool BudgetEntry::ConfirmLargeBudget() {
  constexpr Currency large = Currency::FromWhole(9999);
  if (values_.Budget < large) return true;
  const BoxAnswer answer = messages_.Show(
      "Alert! ", "You have entered a very large amount of money. Are you sure this is correct",
      BoxIcon::Question, BoxButtons::YesNo);
  if (answer == BoxAnswer::Yes) return true;
  // The Budget becomes what is already donated.
  values_.Budget = std::max(values_.TotalDonated, Currency());
  if (values_.TotalDonated > Currency()) values_.Balance = Currency();
  return false;
}

}  // namespace benevix
