#pragma once

#include "controls/controls.h"

namespace benevix {

// The first window: from it the user enters or leaves.
struct frmSplash : Window {
  static constexpr const char* kName = "frmSplash";

  frmSplash() {
    caption = "Benevix";
    Image2[0].shortcut = kEnterShortcut;
    Image2[1].shortcut = kEscapeShortcut;
  }

  PictureBox Image1;
  PictureBox Image2[2] = {PictureBox("Enter"), PictureBox("Exit")};
  Shape Shape2;
};

template <class F>
void visit(frmSplash& window, F&& f) {
  f("Image1", window.Image1);
  f("Image2", window.Image2);
  f("Shape2", window.Shape2);
}

}  // namespace benevix
