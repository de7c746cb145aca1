#pragma once

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "people/other_names.h"

namespace benevix {

// Who a donation is shown as coming from: the user, another name or nobody.
class DonorName {
 public:
  DonorName(frmBVX& main, Desk& desk, OtherNames& names)
      : main_(main), desk_(desk), names_(names) {}

  // Takes a constant of `donor_option`.
  void Option1_Click(int index);

  // A new other name becomes an entry and is remembered.
  void Combo1_LostFocus();

 private:
  frmBVX& main_;
  Desk& desk_;
  OtherNames& names_;
};

// The user's own name is entry 0; it shows while "My Name" is chosen.
void PutOwnName(frmBVX& main, const std::string& name);

}  // namespace benevix
