#include "session/list_view_events.h"

#include "database/organization_list.h"
#include "session/hints.h"
#include "session/totals.h"

namespace benevix {

void ListViewEvents::ListView1_ItemClick(const EventArgs& args) {
  const ListView& list = main_.ListView1;
  const bool organization = list.Text(list.selected).empty();
  main_.EnableOrganizationCommands(organization);
  if (args.button == MouseButton::Left) {
    LeftClick(organization, args.byKeyboard);
  } else {
    const bool isGiven = !list.SelectedText(column::kRecord).empty();
    for (MenuItem* const item : {&main_.MMClear, &main_.MMCorrect}) item->enabled = isGiven;
    ++main_.TMMenu.popUps;
  }
  if (run_.YtdState != 0) showYtd_();
}

void ListViewEvents::ListView1_KeyUp(const EventArgs& args) {
  if (args.key != keys::kEnter || main_.ListView1.selected == 0) return;
  const int box = HasBudget(values_, main_) ? money_box::kDonation : money_box::kBudget;
  desk_.SetFocus(main_.Text1[box]);
}

void ListViewEvents::LeftClick(bool organization, bool byKeyboard) {
  if (!HasBudget(values_, main_)) {
    if (!byKeyboard) desk_.SetFocus(main_.Text1[money_box::kBudget]);
    return;
  }
  main_.Text1[money_box::kDonation].enabled = organization;
  main_.mnuDistribFavs.enabled = organization;
  if (organization) {
    for (OptionButton& option : main_.Option1) option.enabled = true;
    for (OptionButton& option : main_.Option2) option.enabled = true;
    main_.Combo1.enabled = true;
  }
  ShowHint(main_, hint::kPreferences);
}

void ListViewEvents::SelectByKeyboard(int row) {
  main_.ListView1.selected = row;
  ListView1_ItemClick({.byKeyboard = true});
}

void ListViewEvents::Select(int row, bool byKeyboard) {
  ListView& list = main_.ListView1;
  if (!byKeyboard) desk_.SetFocus(list);
  list.EnsureVisible(row);
  list.selected = row;
  ListView1_ItemClick({.byKeyboard = byKeyboard});
}

void ListViewEvents::lclist_Click(int index) {
  const ListView& list = main_.ListView1;
  const std::string country = main_.lclist.items[index].caption;
  for (const auto& [element, item] : main_.lclist.items) {
    // Element i is row i + 1, so the first equal caption is the first equal row.
    if (element >= list.Count() || item.caption != country || list.Text(element + 1) != country) {
      continue;
    }
    return Select(element + 1, true);
  }
}

}  // namespace benevix
