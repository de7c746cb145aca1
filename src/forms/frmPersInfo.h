#pragma once

#include <string>

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
    Missing.visible = false;
  }

  Label Label1[contact_field::kCount] = {Label("Full Name"), Label("Address"),     Label("City"),
                                         Label("State"),     Label("Postal Code"), Label("Country"),
                                         Label("E-mail")};
  TextBox Text1[contact_field::kCount] = {TextBox("Your name")};
  ComboBox Combo1{false};  // the countries; shows the one that the Country box names
  CheckBox Check1{"I want to participate in the Donors Ranking (optional)",
                  "Consult the Help before check marking this option"};
  Label Label2{"* All fields must be complteted"};
  Label Missing;  // what is not filled in
  Button Command1[2] = {Button("&Save"), Button("&Cancel")};
};

template <class F>
void visit(frmPersInfo& window, F&& f) {
  f("Label1", window.Label1);
  // The countries stand behind the Country box.
  for (int i = 0; i < contact_field::kCount; ++i) {
    f(("Text1(" + std::to_string(i) + ")").c_str(), window.Text1[i]);
    if (i == contact_field::kCountry) f("Combo1", window.Combo1);
  }
  f("Check1", window.Check1);
  f("Label2", window.Label2);
  f("Missing", window.Missing);
  f("Command1", window.Command1);
}

}  // namespace benevix
