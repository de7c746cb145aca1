#pragma once

#include "controls/controls.h"

namespace benevix {

// Asks a first-time user for the fee mode and the donation mode, page by page.
struct frmWizard : Window {
  static constexpr const char* kName = "frmWizard";

  frmWizard() {
    Command1.shortcut = kEnterShortcut;
    Command2.shortcut = "F1";
    Closed.visible = false;
  }

  PictureBox Image1;        // decoration
  Label Label1;             // the page text
  OptionButton Option1[2];  // the answers of a page
  Label Closed{"The fees of this session are settled. New Session opens the choice again."};
  Button Command1{"&Continue"};
  Button Command2{"&Help"};
};

template <class F>
void visit(frmWizard& window, F&& f) {
  f("Image1", window.Image1);
  f("Label1", window.Label1);
  f("Option1", window.Option1);
  f("Closed", window.Closed);
  f("Command1", window.Command1);
  f("Command2", window.Command2);
}

}  // namespace benevix
