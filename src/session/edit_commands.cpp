#include "session/edit_commands.h"

#include "database/organization_list.h"
#include "session/options_record.h"

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
  // A box that was disabled for another row says nothing about this one.
  const bool ticked = main_.Check1.enabled && main_.Check1.value != 0;
  donation_.GiveUntyped(Currency::FromText(list.SelectedText(column::kAmount)),
                        ticked || AsksForProof(list.SelectedText(column::kRecord)));
}

}  // namespace benevix
