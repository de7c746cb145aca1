#include "session/budget_entry.h"

#include <algorithm>

#include "base/format.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "session/totals.h"
#include "session/typed_amount.h"

namespace benevix {
namespace {

// Empty when the typed amount is a whole number of dollars.
std::string WholeDollarsNote(const std::string& text) {
  const auto typed = ReadAmount(text).number;
  if (!typed || *typed == ToInt32(*typed)) return {};
  const auto shown = [](double amount) { return FormatDouble(amount, kSumPattern); };
  return "Whole dollars only: " + shown(*typed) + " counts as " + shown(ToInt32(*typed));
}

}  // namespace

void BudgetEntry::Text1_Change() {
  TextBox& box = main_.Text1[money_box::kBudget];
  if (const std::string note = WholeDollarsNote(box.text); !note.empty()) box.note = note;
}

void BudgetEntry::Enter() {
  TextBox& box = main_.Text1[money_box::kBudget];
  if (!box.typed) return;
  const TypedAmount typed = ReadAmount(box.text);
  if (!typed.number) {
    box.note = typed.note;
    return;
  }
  const std::string note = WholeDollarsNote(box.text);
  Currency balance;
  try {
    const Currency budget = values_.Budget + Currency::FromWhole(ToInt32(*typed.number));
    balance = budget - values_.TotalDonated;
    values_.Budget = budget;
  } catch (const RuntimeError&) {
    box.note = kTooLargeNote;
    return;
  }
  if (values_.Budget == Currency()) {
    box.note = "At least 1 dollar";
    return;
  }

  if (ConfirmLargeBudget()) {
    if (values_.TotalDonated == Currency()) {
      choosePayment_();
      values_.SessionFeeTaken = false;  // the whole Budget is left again
    }
    values_.BudgetEntered = values_.Budget;
    values_.Balance = balance;
    main_.Label8.caption = values_.Balance.ToText();
    MarkBudgetAccepted(main_);
    main_.Text1[money_box::kBalance].backColor = colors::kBalanceGround;
  }
  method73(values_, main_, desk_);
  main_.Label8.visible = false;
  box.note = note;  // the focus has moved on
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
