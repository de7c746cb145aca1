#include "session/edit_commands.h"

#include "database/organization_list.h"

namespace benevix {

bool EditCommands::SelectedRowHasDonation() const {
  const ListView& list = main_.ListView1;
  return list.selected != 0 && !list.SelectedText(column::kRecord).empty();
}

void EditCommands::mnuCls_Click() {
  if (SelectedRowHasDonation()) donation_.Give(Currency());
  main_.Text1[money_box::kDonation].Write("");
}

void EditCommands::mnuCorrect_Click() {
  if (!SelectedRowHasDonation()) return;
  const ListView& list = main_.ListView1;
  donation_.Give(Currency::FromText(list.SelectedText(column::kAmount)));
}

}  // namespace benevix
