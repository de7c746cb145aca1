#include "online/help.h"

#include "base/text.h"

namespace benevix {
namespace {

const std::string kCaption = "Benevix Help";

}  // namespace

void Help::ShowPage(const std::string& page, const std::string& caption) {
  desk_.Load(viewer_);
  if (!caption.empty()) viewer_.caption = caption;
  viewer_.ShowPage(FromUtf8(info_.Resource(page)));
  desk_.Show(viewer_);
}

void Help::qhelp1_Click(int index) {
  ShowPage("qhelp.html");
  ShowPage("qhelp.html#" + main_.qhelp1.items[index].caption);
}

void Help::whatisBtn1_Click() {
  ShowPage("help.html#Btni", kCaption);
}

void Help::mnuHelp_Click() {
  ShowPage("help.html", kCaption);
}

void Help::mnuSubmitList_Click() {
  ShowPage("help.html#Adding", kCaption);
}

void Help::mnuAbout_Click() {
  constexpr std::uint8_t about = 7;
  std::string title = "About";
  messages_.ShowMessage(about, message_kind::kNone, title);
}

void Help::gotoBVXweb_Click() {
  desk_.Load(viewer_);
  viewer_.ShowPage(info_.deployment.serverBase);
  desk_.Show(viewer_);
}

}  // namespace benevix
