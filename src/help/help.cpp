#include "help/help.h"

#include <string_view>

#include "base/lines.h"

namespace benevix {
namespace {

const std::string kTitle = "Benevix Help";

}  // namespace

void Help::ShowPage(const std::string& page, const std::string& title) {
  std::string_view anchor = page;
  const std::string_view file = CutField(anchor, '#');
  viewer_.ShowPage(Page::File(info_.Resource(FilePath(std::string(file))), std::string(anchor)),
                   title);
}

void Help::qhelp1_Click(int index) {
  ShowPage("qhelp.html#" + main_.qhelp1.items.at(index).caption);
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
  std::string title = "About";
  messages_.ShowMessage(message::kAbout, message_kind::kNone, title);
}

void Help::gotoBVXweb_Click() {
  viewer_.ShowPage(Page::Web(info_.deployment.serverBase));
}

}  // namespace benevix
