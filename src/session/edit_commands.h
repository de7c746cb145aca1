#pragma once

#include "forms/frmBVX.h"
#include "session/donation_entry.h"

namespace benevix {

// The Edit menu: withdraws or corrects the donation of the selected row.
class EditCommands {
 public:
  EditCommands(frmBVX& main, DonationEntry& donation) : main_(main), donation_(donation) {}

  // Withdraws the row's donation and empties the Donation box.
  void mnuCls_Click();
  // Donates the row's amount again, with the current options; proof of mailing can only be added.
  void mnuCorrect_Click();

 private:
  [[nodiscard]] bool SelectedRowHasDonation() const;

  frmBVX& main_;
  DonationEntry& donation_;
};

}  // namespace benevix
