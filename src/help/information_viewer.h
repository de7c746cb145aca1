#pragma once

#include <string>

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "forms/frmInfo.h"
#include "platform/waits.h"

namespace benevix {

// The information viewer: shows a page, or an organization's text.
class InformationViewer {
 public:
  InformationViewer(frmInfo& window, frmBVX& main, Desk& desk, Waits& waits)
      : window_(window), main_(main), desk_(desk), waits_(waits) {}

  // Opens at a page, in place of what was shown: a web address, or a file's path and perhaps "#"
  // and an anchor. The title is never that of the page before.
  void ShowPage(const std::string& address, const std::string& title = frmInfo::kTitle,
                Attention attention = Attention::None);

  // Opens for a text that is still to come; the main window waits.
  void AwaitText();
  // Shows the text, from its beginning.
  void ShowText(const std::string& text, const std::string& title);

  void Form_Load();
  void VScroll1_Scroll();
  // The main window repaints.
  void Form_Unload();

 private:
  // The scroll bar reaches over the whole text.
  void MeasureText() { window_.VScroll1.max = window_.Label1.height; }

  frmInfo& window_;
  frmBVX& main_;
  Desk& desk_;
  Waits& waits_;
};

}  // namespace benevix
