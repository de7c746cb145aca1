#pragma once

#include "controls/controls.h"

namespace benevix {

// The splash window: the user enters the program or exits.
struct frmSplash : Window {
  static constexpr const char* kName = "frmSplash";

  frmSplash() {
    caption = "Benevix";
    NotProtected.visible = false;
    NotProtected.foreColor = colors::kRed;
    endsRequests = Image2[1].endsRequests = true;
    for (PictureBox& door : Image2) door.isButton = true;
    Image2[0].shortcut = kEnterShortcut;
    Image2[1].shortcut = kEscapeShortcut;
  }

  PictureBox Image1;  // the logo
  PictureBox Image2[2] = {PictureBox("Enter"), PictureBox("Exit")};
  Label NotProtected;  // that others can read what is sent
  Shape Shape2;        // the frame, highlighted while the mouse is over a button
};

template <class F>
void visit(frmSplash& window, F&& f) {
  f("Image1", window.Image1);
  f("Image2", window.Image2);
  f("NotProtected", window.NotProtected);
  f("Shape2", window.Shape2);
}

}  // namespace benevix
