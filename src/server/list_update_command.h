#pragma once

#include "core/messages.h"
#include "server/list_update.h"
#include "session/session_values.h"

namespace benevix {

// The command "Update List": asks first if a session would be lost.
class ListUpdateCommand {
 public:
  ListUpdateCommand(ListUpdate& update, const SessionValues& values, Messages& messages)
      : update_(update), values_(values), messages_(messages) {}

  // Of the link "Update List", and of the menu item.
  void Label11_MouseUp();

 private:
  ListUpdate& update_;
  const SessionValues& values_;
  Messages& messages_;
};

}  // namespace benevix
