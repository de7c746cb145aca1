#include "session/new_session.h"

#include "session/modes.h"

namespace benevix {

void ResetSessionControls(frmBVX& main) {
  const frmBVX design;
  main.caption = design.caption;
  main.mousePointer = design.mousePointer;
  for (std::size_t i = 0; i < 3; ++i) {
    main.Text1[i].Write("");
    main.Text1[i].enabled = design.Text1[i].enabled;
    main.Text1[i].fontSize = design.Text1[i].fontSize;
    main.Text1[i].fontBold = design.Text1[i].fontBold;
    main.Text1[i].backColor = design.Text1[i].backColor;
    main.Text1[i].foreColor = design.Text1[i].foreColor;
    main.Option1[i].enabled = design.Option1[i].enabled;
  }
  Choose(main.Option1, 0);
  for (OptionButton& option : main.Option2) option.enabled = false;
  Choose(main.Option2, 0);
  EnableFeeMode(main, true);
  main.Combo1.enabled = false;
  main.Combo1.text = main.Combo1.list.empty() ? "" : main.Combo1.list[0];
  main.Check1.enabled = design.Check1.enabled;
  main.Check1.value = 0;
  main.Check2.value = 0;
  main.Command1.enabled = false;
  main.Command1.tag.clear();
  main.Label8.caption = "0";
  main.Label8.visible = true;
  for (MenuItem* item : {&main.mnuDistribFavs, &main.mnuCancelRemove, &main.mnuPrntSession}) {
    item->enabled = false;
  }
  main.EnableOrganizationCommands(false);
  main.mnuChgPayMethod.enabled = true;
}

void ResetSession(frmBVX& main, SessionValues& values, Desk& desk) {
  values.Balance = values.Budget = values.Donation = Currency();
  values.TotalDonated = values.BudgetEntered = Currency();
  values.SessionFeeTaken = false;
  ResetSessionControls(main);
  // Emptied here, so that no donation remains if the caller's reload fails.
  main.ListView1.SetRows(nullptr);
  desk.SetFocus(main.Text1[money_box::kBudget]);
}

}  // namespace benevix
