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
  main.Text1[0].Write(Format(values.Budget, kMoneyPattern));
  main.Text1[1].Write(Format(values.Balance, kMoneyPattern));
  if (values.Balance > Currency()) {
    main.Text1[1].foreColor = colors::kBlack;
    ShowHint(main, hint::kSelectAnother);
  } else {
    main.Text1[1].Write("0.00");
    main.Text1[1].foreColor = colors::kRed;
    ShowHint(main, hint::kContinue);
  }
  main.Command1.enabled = values.Balance <= values.BvxFee;
  desk.SetFocus(main.ListView1);
}

}  // namespace benevix
