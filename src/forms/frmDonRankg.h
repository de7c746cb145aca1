#pragma once

#include "controls/controls.h"

namespace benevix {

// Asks under which name the donor is listed in the donors ranking.
struct frmDonRankg : Window {
  static constexpr const char* kName = "frmDonRankg";

  frmDonRankg() {
    caption = " Donors Ranking";
    Command1.shortcut = kEnterShortcut;
  }

  Label Label1{"What name would you like to use for your entry on the Donors Ranking?"};
  OptionButton Option1[3] = {OptionButton("My Name"), OptionButton("My Business"),
                             OptionButton("Both")};
  Label Label2{"Business Name"};
  TextBox Text1;
  Button Command1{"&OK"};
};

template <class F>
void visit(frmDonRankg& window, F&& f) {
  f("Label1", window.Label1);
  f("Option1", window.Option1);
  f("Label2", window.Label2);
  f("Text1", window.Text1);
  f("Command1", window.Command1);
}

}  // namespace benevix
