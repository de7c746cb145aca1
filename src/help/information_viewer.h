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

  // Opens the viewer at a page, in place of what it showed.
  void ShowPage(const Page& page, const std::string& title = frmInfo::kTitle,
                Attention attention = Attention::None);

  // Opens the viewer before its text has arrived; disables the main window.
  void AwaitText();
  // Shows the text, scrolled to its beginning.
  void ShowText(const std::string& text, const std::string& title);

  void Form_Load();
  void VScroll1_Scroll();
  // To the page before, or to the text that a page replaced.
  void Back_Click();
  // Back is there when there is something behind the page.
  void ShowBack();

 private:
  // The scroll bar covers the whole text.
  void UpdateScrollRange() { window_.VScroll1.max = window_.Label1.height; }

  [[nodiscard]] bool HasText() const { return !window_.Label1.caption.empty(); }

  frmInfo& window_;
  Desk& desk_;
  Waits& waits_;
};

}  // namespace benevix
