#pragma once

#include <string>

#include "controls/desk.h"
#include "core/messages.h"
#include "forms/frmInfo.h"
#include "platform/environment.h"

namespace benevix {

// The information viewer: shows a page, or an organization's text.
class InformationViewer {
 public:
  InformationViewer(frmInfo& window, Desk& desk, Messages& messages, Environment& environment)
      : window_(window), desk_(desk), messages_(messages), environment_(environment) {}

  // Opens the viewer at a page, in place of what it showed.
  void ShowPage(const Page& page, const std::string& title = frmInfo::kTitle,
                Attention attention = Attention::None);

  // Opens the viewer before its text has arrived; disables the main window.
  void AwaitText();
  // Shows the text, scrolled to its beginning, and below it what else can be done, if anything.
  void ShowText(const std::string& text, const std::string& title, const std::string& nextStep);

  void Form_Load();
  void VScroll1_Scroll();
  // To the page before, or to the text that a page replaced.
  void Back_Click();
  // Shows the page in the user's own browser.
  void Browser_Click();
  // The same for any page of the web; when no browser can be opened, the user is told the address.
  void OpenInBrowser(const std::string& address);
  // Back is there when there is something behind the page, the way to the browser with a page of
  // the web; the next step belongs to the text.
  void ShowWays();

 private:
  // The scroll bar covers the whole text.
  void UpdateScrollRange() { window_.VScroll1.max = window_.Label1.height; }

  // Of the page, as far as it is known.
  [[nodiscard]] const std::string& Address() const;
  [[nodiscard]] bool HasText() const { return !window_.Label1.caption.empty(); }

  frmInfo& window_;
  Desk& desk_;
  Messages& messages_;
  Environment& environment_;
};

}  // namespace benevix
