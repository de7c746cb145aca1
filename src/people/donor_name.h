#pragma once

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "people/other_names.h"

namespace benevix {

// The name a donation is sent under: the user's own, another one or anonymous.
class DonorName {
 public:
  DonorName(frmBVX& main, Desk& desk, OtherNames& names)
      : main_(main), desk_(desk), names_(names) {}

  // Takes a constant of `donor_option`.
  void Option1_Click(int index);

  // Adds a new other name to the list and stores it.
  void Combo1_LostFocus();

 private:
  frmBVX& main_;
  Desk& desk_;
  OtherNames& names_;
};

// A comma divides the fields of a donation's record, so no donor's name takes one.
void RefuseComma(EventArgs& args);

// Sets the user's own name, entry 0, unless `name` is empty; shows it while "My Name" is chosen.
void SetOwnName(frmBVX& main, const std::string& name);

}  // namespace benevix
