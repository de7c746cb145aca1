#include "server/list_update_command.h"

namespace benevix {

void ListUpdateCommand::Label11_MouseUp() {
  if (values_.Budget > Currency() &&
      messages_.Show("Updating now will reset the list and your current selections will be "
                     "discarded. Do you still want to continue?",
                     BoxIcon::Question, BoxButtons::YesNo) != BoxAnswer::Yes) {
    return;
  }
  bool ready = false;
  update_.CheckListUpdate(false, true, ready);
  if (!ready) return;  // as after every check that is not silent
  if (update_.InstallList()) {
    newSession_();
  } else {
    messages_.Show("Failed to retrieve data from server. Try again later");
  }
}

}  // namespace benevix
