#pragma once

#include "controls/controls.h"

namespace benevix {

// Searches the organization list for a word.
struct frmSrch : Window {
  static constexpr const char* kName = "frmSrch";

  frmSrch() {
    caption = " Find";
    Option1[0].value = true;
    Command1.shortcut = kEnterShortcut;
    NotFound.visible = false;
  }

  Label Label1{"Word"};
  TextBox Text1;
  Frame Frame1{"Search in"};
  OptionButton Option1[2] = {OptionButton("Country", {}, "Frame1"),
                             OptionButton("Organization Name", {}, "Frame1")};
  Label NotFound{"Nothing found"};
  Button Command1{"&Find"};
};

template <class F>
void visit(frmSrch& window, F&& f) {
  f("Label1", window.Label1);
  f("Text1", window.Text1);
  f("Frame1", window.Frame1);
  f("Option1", window.Option1);
  f("NotFound", window.NotFound);
  f("Command1", window.Command1);
}

}  // namespace benevix
