#pragma once

#include <algorithm>
#include <cstddef>

#include "controls/controls.h"

namespace benevix {

// The information viewer: a text panel or a page.
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
  }

  // Shows a page in place of the text panel, never under the title of the page before.
  void ShowPage(const std::string& address, const std::string& title = kTitle) {
    caption = title;
    Picture1.visible = false;
    wb1.visible = true;
    wb1.Navigate2(address);
  }

  // Puts a text on the panel, at its beginning. Until it is measured, its height is that of its
  // lines.
  void PutText(const std::string& text) {
    constexpr int lineHeight = 195;
    constexpr std::ptrdiff_t mostLines = 1'000'000;
    const auto lines = std::min(1 + std::count(text.begin(), text.end(), '\n'), mostLines);
    Label1.caption = text;
    Label1.height = std::max(kPanelHeight, static_cast<int>(lines) * lineHeight);
    Label1.top = VScroll1.value = 0;
  }

  // The scroll bar reaches over the whole text.
  void MeasureText() { VScroll1.max = Label1.height; }

  static constexpr const char* kTitle = "Information";
  static constexpr int kPanelHeight = 7200;  // twips

  PictureBox Picture1;
  Label Label1;  // the page text
  ScrollBar VScroll1;
  Label Label2{"Retrieving Information. Please wait..."};
  Label Label3{"TRANSLATE"};
  PageViewer wb1;
};

template <class F>
void visit(frmInfo& window, F&& f) {
  f("Picture1", window.Picture1);
  f("Label1", window.Label1);
  f("VScroll1", window.VScroll1);
  f("Label2", window.Label2);
  f("Label3", window.Label3);
  f("wb1", window.wb1);
}

}  // namespace benevix
