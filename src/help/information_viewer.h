#pragma once

#include <string>

#include "controls/desk.h"
#include "forms/frmInfo.h"
#include "platform/waits.h"

namespace benevix {

// The information viewer: shows a page, or an organization's text.
class InformationViewer {
 public:
  InformationViewer(frmInfo& window, Desk& desk, Waits& waits)
      : window_(window), desk_(desk), waits_(waits) {}

  // Opens the viewer at a page, in place of what it showed. `address` is a web address or a file
  // path, which may end in "#" and an anchor.
  void ShowPage(const std::string& address, const std::string& title = frmInfo::kTitle,
                Attention attention = Attention::None);

  // Opens the viewer before its text has arrived; disables the main window.
  void AwaitText();
  // Shows the text, scrolled to its beginning.
  void ShowText(const std::string& text, const std::string& title);

  void Form_Load();
  void VScroll1_Scroll();

 private:
  // The scroll bar covers the whole text.
  void UpdateScrollRange() { window_.VScroll1.max = window_.Label1.height; }

  frmInfo& window_;
  Desk& desk_;
  Waits& waits_;
};

}  // namespace benevix
