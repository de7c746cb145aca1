#include "server/list_update_command.h"

#include "base/runtime_error.h"
#include "server/list_changes.h"

namespace benevix {

void ListUpdateCommand::Label11_MouseUp() {
  if (values_.Budget > Currency() &&
      messages_.Show("Updating now will reset the list and your current selections will be "
                     "discarded. Do you still want to continue?",
                     BoxIcon::Question, BoxButtons::YesNo) != BoxAnswer::Yes) {
    return;
  }
  const std::string text = Check();
  if (!text.empty()) main_.Label6.caption = text;
}

std::string ListUpdateCommand::Check() {
  const auto lock = update_.Lock();
  if (!lock) return "Another copy of the program is updating the list. Try again in a moment.";
  bool ready = false;  // stays so: the next start installs what this check downloads
  const ListCheck check = update_.CheckListUpdate(false, true, ready);
  if (!check.brokeOff.empty()) return "The new list could not be downloaded: " + check.brokeOff;
  return check.downloaded ? Changes() : "";
}

std::string ListUpdateCommand::Changes() const {
  try {
    const OrganizationList next(*files_.Open(update_.Downloaded()));
    const std::string fault = next.Fault();
    if (!fault.empty()) return "The new list is damaged (" + fault + ") and will not be used.";
    if (database_.List() == nullptr) return "";
    const ListChanges changes = CompareLists(*database_.List(), next);
    return TellChanges(changes, favorites_.NamesOf(changes.gone));
  } catch (const RuntimeError& error) {
    return error.what();
  }
}

}  // namespace benevix
