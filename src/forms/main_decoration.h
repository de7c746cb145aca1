#pragma once

#include "controls/controls.h"

namespace benevix {

// Parts of the main window that have no widgets in the drawing.
struct MainDecoration {
  PictureBox Image1, Image2, Image3, Image4, Image5, Picture2;
  Shape Shape1, Shape3, Shape4, Shape6;
  Line Line1, Line2, Line3;
};

template <class F>
void visitDecoration(MainDecoration& window, F&& f) {
  f("Image1", window.Image1);
  f("Image2", window.Image2);
  f("Image3", window.Image3);
  f("Image4", window.Image4);
  f("Image5", window.Image5);
  f("Picture2", window.Picture2);
  f("Shape1", window.Shape1);
  f("Shape3", window.Shape3);
  f("Shape4", window.Shape4);
  f("Shape6", window.Shape6);
  f("Line1", window.Line1);
  f("Line2", window.Line2);
  f("Line3", window.Line3);
}

}  // namespace benevix
