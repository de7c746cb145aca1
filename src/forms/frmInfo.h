#pragma once

#include "controls/controls.h"

namespace benevix {

// The information viewer: shows a text panel or a page.
struct frmInfo : Window {
  static constexpr const char* kName = "frmInfo";

  frmInfo() {
    caption = kTitle;
    topmost = true;
    wb1.visible = false;
    Label3.visible = false;
    Label1.holder = "Picture1";
    Label1.height = kPanelHeight;
    VScroll1.holder = "Picture1";
    Label3.shortcut = "Ctrl+T";
    Back.visible = Browser.visible = NextStep.visible = false;
    Back.shortcut = "Alt+Left";
  }

  static constexpr const char* kTitle = "Information";
  static constexpr int kPanelHeight = 7200;  // twips

  Button Back{"&Back", "To what was shown before"};
  Button Browser{"&Open in browser", "Shows the page in your own browser"};
  PictureBox Picture1;  // the text panel
  Label Label1;         // its text; its tag is the window's caption with it
  ScrollBar VScroll1;
  Label NextStep;  // what else can be done where there is no text
  Label Label2{"Retrieving Information. Please wait..."};
  Label Label3{"TRANSLATE"};  // tag "Yes" once it was clicked
  PageViewer wb1;             // the page
};

template <class F>
void visit(frmInfo& window, F&& f) {
  f("Back", window.Back);
  f("Browser", window.Browser);
  f("Picture1", window.Picture1);
  f("Label1", window.Label1);
  f("VScroll1", window.VScroll1);
  f("NextStep", window.NextStep);
  f("Label2", window.Label2);
  f("Label3", window.Label3);
  f("wb1", window.wb1);
}

}  // namespace benevix
