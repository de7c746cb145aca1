#pragma once

#include "controls/controls.h"

namespace benevix {

// Asks a first-time user for the fee mode and the donation mode, page by page.
struct frmWizard : Window {
  static constexpr const char* kName = "frmWizard";

  frmWizard() {
    Command3.visible = false;
    Command1.shortcut = kEnterShortcut;
    Command2.shortcut = "F1";
    Closed.visible = false;
  }

  PictureBox Image1;        // decoration
  Label Step;               // which page of how many
  Label Label1;             // the page text
  OptionButton Option1[2];  // the answers of a page
  Label Meaning[2];         // what each answer means for the money
  Label Closed{"The fees of this session are settled. New Session opens the choice again."};
  Button Command3{"&Back"};
  Button Command1{"&Continue"};
  Button Command2{"&Help"};
};

template <class F>
void visit(frmWizard& window, F&& f) {
  f("Image1", window.Image1);
  f("Step", window.Step);
  f("Label1", window.Label1);
  f("Option1", window.Option1);
  f("Meaning", window.Meaning);
  f("Closed", window.Closed);
  f("Command3", window.Command3);
  f("Command1", window.Command1);
  f("Command2", window.Command2);
}

}  // namespace benevix
