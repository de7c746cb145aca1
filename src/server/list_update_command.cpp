#include "server/list_update_command.h"

namespace benevix {

void ListUpdateCommand::Label11_MouseUp() {
  if (values_.Budget > Currency() &&
      messages_.Show("Updating now will reset the list and your current selections will be "
                     "discarded. Do you still want to continue?",
                     BoxIcon::Question, BoxButtons::YesNo) != BoxAnswer::Yes) {
    return;
  }
  bool ready = false;  // stays so: the next start installs what this check downloads
  update_.CheckListUpdate(false, true, ready);
}

}  // namespace benevix
