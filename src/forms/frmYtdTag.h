#pragma once

#include "controls/controls.h"

namespace benevix {

// The year-to-date amounts of the selected organization.
struct frmYtdTag : Window {
  static constexpr const char* kName = "frmYtdTag";

  frmYtdTag() {
    caption = " Status";
    beside = "Frame9";
  }

  Label Label1[4] = {Label("Today"), Label("This Month"), Label("This Year"), Label("Total Ever")};
  Label Label2[4];                       // the amounts
  Label Organization{"No amounts yet"};  // whose they are
};

template <class F>
void visit(frmYtdTag& window, F&& f) {
  f("Organization", window.Organization);
  f("Label1", window.Label1);
  f("Label2", window.Label2);
}

}  // namespace benevix
