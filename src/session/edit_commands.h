#pragma once

#include "forms/frmBVX.h"
#include "session/donation_entry.h"

namespace benevix {

// The Edit menu: what is done to the selected row's donation, by the donation entry's own steps.
class EditCommands {
 public:
  EditCommands(frmBVX& main, DonationEntry& donation) : main_(main), donation_(donation) {}

  // Takes the row's donation back and empties the Donation box.
  void mnuCls_Click();
  // Gives the row its own amount again, with the options as they stand now.
  void mnuCorrect_Click();

 private:
  [[nodiscard]] bool RowCarriesDonation() const;

  frmBVX& main_;
  DonationEntry& donation_;
};

}  // namespace benevix
