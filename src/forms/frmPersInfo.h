#pragma once

#include "controls/controls.h"

namespace benevix {

namespace contact_field {  // Text1
inline constexpr int kFullName = 0;
inline constexpr int kCountry = 5;
inline constexpr int kEMail = 6;
inline constexpr int kCount = 7;
}  // namespace contact_field

// The user's own contact details.
struct frmPersInfo : Window {
  static constexpr const char* kName = "frmPersInfo";

  frmPersInfo() {
    caption = " Contact Information";
    Text1[contact_field::kFullName].takes = kNameTakes;
    Command1[0].shortcut = kEnterShortcut;
    Command1[1].shortcut = kEscapeShortcut;
  }

  Label Label1[contact_field::kCount] = {Label("Full Name"), Label("Address"),     Label("City"),
                                         Label("State"),     Label("Postal Code"), Label("Country"),
                                         Label("E-mail")};
  TextBox Text1[contact_field::kCount] = {TextBox("Your name")};
  ComboBox Combo1{false};  // the countries
  CheckBox Check1{"I want to participate in the Donors Ranking (optional)",
                  "Consult the Help before check marking this option"};
  Label Label2{"* All fields must be complteted"};
  Button Command1[2] = {Button("&Save"), Button("&Cancel")};
};

template <class F>
void visit(frmPersInfo& window, F&& f) {
  f("Label1", window.Label1);
  f("Text1", window.Text1);
  f("Combo1", window.Combo1);
  f("Check1", window.Check1);
  f("Label2", window.Label2);
  f("Command1", window.Command1);
}

}  // namespace benevix
