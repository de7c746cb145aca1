#include "help/help.h"

#include "base/text.h"

namespace benevix {
namespace {

const std::string kTitle = "Benevix Help";

}  // namespace

void Help::ShowPage(const std::string& page, const std::string& title) {
  desk_.Load(viewer_);
  viewer_.ShowPage(FromUtf8(info_.Resource(page)), title);
  desk_.Show(viewer_);
}

void Help::qhelp1_Click(int index) {
  ShowPage("qhelp.html");
  ShowPage("qhelp.html#" + main_.qhelp1.items[index].caption);
}

void Help::whatisBtn1_Click() {
  ShowPage("help.html#Btni", kTitle);
}

void Help::mnuHelp_Click() {
  ShowPage("help.html", kTitle);
}

void Help::mnuSubmitList_Click() {
  ShowPage("help.html#Adding", kTitle);
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
