#pragma once

#include <functional>

#include "core/messages.h"
#include "server/list_update.h"
#include "session/session_values.h"

namespace benevix {

// The command "Update List": asks first if a session would be lost.
class ListUpdateCommand {
 public:
  ListUpdateCommand(ListUpdate& update, const SessionValues& values, Messages& messages,
                    std::function<void()> newSession)
      : update_(update), values_(values), messages_(messages), newSession_(std::move(newSession)) {}

  void Label11_MouseUp();

 private:
  ListUpdate& update_;
  const SessionValues& values_;
  Messages& messages_;
  std::function<void()> newSession_;
};

}  // namespace benevix
