#include "help/information_viewer.h"

#include <algorithm>

#include "base/web_address.h"

namespace benevix {

void InformationViewer::ShowPage(const Page& page, const std::string& title, Attention attention) {
  desk_.Load(window_);
  window_.caption = title;
  window_.Picture1.visible = false;
  window_.wb1.visible = true;
  window_.wb1.Navigate2(page);
  desk_.Show(window_, Modality::Modeless, attention);
}

void InformationViewer::AwaitText() {
  desk_.Load(window_);
  window_.Picture1.visible = false;
  window_.wb1.visible = false;
  window_.Label3.visible = true;
  desk_.Show(window_, Modality::Modeless, Attention::KeepsMainDisabled);
}

void InformationViewer::ShowText(const std::string& text, const std::string& title,
                                 const std::string& nextStep) {
  // The height is estimated from the number of lines until the text is drawn.
  constexpr int lineHeight = 195;  // twips
  constexpr std::ptrdiff_t maxLines = 1'000'000;
  const auto lines = std::min(1 + std::count(text.begin(), text.end(), '\n'), maxLines);
  window_.caption = window_.Label1.tag = title;
  window_.Label1.caption = text;
  window_.NextStep.caption = nextStep;
  window_.Label1.height = std::max(frmInfo::kPanelHeight, static_cast<int>(lines) * lineHeight);
  window_.Label1.top = window_.VScroll1.value = 0;
  window_.Picture1.visible = true;
  desk_.SetFocus(window_.VScroll1);  // so that the arrow keys scroll the text
  environment_.waits.DoEvents();     // draws the text, which sets its height
  UpdateScrollRange();
}

void InformationViewer::Form_Load() {
  UpdateScrollRange();
}

void InformationViewer::VScroll1_Scroll() {
  UpdateScrollRange();  // the window may have been resized
  window_.Label1.top = -window_.VScroll1.value;
}

void InformationViewer::Back_Click() {
  if (window_.wb1.canGoBack) {
    ++window_.wb1.backs;
    return;
  }
  window_.wb1.Navigate2({});
  window_.wb1.visible = false;
  window_.Picture1.visible = true;
  window_.Label3.visible = true;
  window_.caption = window_.Label1.tag;
  desk_.SetFocus(window_.VScroll1);
}

const std::string& InformationViewer::Address() const {
  const PageViewer& viewer = window_.wb1;
  return viewer.shown.empty() ? viewer.page.web : viewer.shown;
}

void InformationViewer::Browser_Click() {
  OpenInBrowser(Address());
}

void InformationViewer::OpenInBrowser(const std::string& address) {
  if (environment_.shell.OpenInBrowser(address)) return;
  messages_.Show("No browser could be opened. The address of the page is:\r\n" + address,
                 BoxIcon::Information);
}

void InformationViewer::ShowWays() {
  window_.Back.visible = window_.wb1.visible && (window_.wb1.canGoBack || HasText());
  window_.Browser.visible = window_.wb1.visible && IsWebAddress(Address());
  window_.NextStep.visible = window_.Picture1.visible && !window_.NextStep.caption.empty();
}

}  // namespace benevix
