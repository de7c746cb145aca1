#include "session/totals.h"

#include "base/format.h"
#include "database/organization_list.h"
#include "session/hints.h"

namespace benevix {

void RecalcTotalDonated(SessionValues& values, const ListView& list) {
  Currency total;
  for (const auto& [row, cells] : list.cells) {
    total += Currency::FromText(cells[column::kAmount]);
  }
  values.TotalDonated = total;
}

void method73(const SessionValues& values, frmBVX& main, Desk& desk) {
  const bool hasBalance = values.Balance > Currency();
  TextBox& balance = main.Text1[money_box::kBalance];
  main.Text1[money_box::kBudget].Write(Format(values.Budget, kMoneyPattern));
  balance.Write(hasBalance ? Format(values.Balance, kMoneyPattern) : "0.00");
  balance.foreColor = hasBalance ? colors::kBlack : colors::kRed;
  ShowHint(main, hasBalance ? hint::kSelectAnother : hint::kContinue);
  OpenContinue(values, main);
  desk.SetFocus(main.ListView1);
}

void OpenContinue(const SessionValues& values, frmBVX& main) {
  main.Command1.enabled = values.Balance <= values.BvxFee;
}

bool IsAllGiven(const SessionValues& values) {
  return values.Balance == Currency() && values.TotalDonated != Currency();
}

bool HasBudget(const SessionValues& values, const frmBVX& main) {
  const TextBox& box = main.Text1[money_box::kBudget];
  return !box.text.empty() && (!box.typed || values.Budget != Currency());
}

void MarkBudgetAccepted(frmBVX& main) {
  main.Text1[money_box::kBudget].fontSize = 9;
  main.Text1[money_box::kBudget].fontBold = true;
  main.Text1[money_box::kBudget].backColor = colors::kLightGrey;
}

}  // namespace benevix
