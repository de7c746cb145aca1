#pragma once

#include <string>

#include "core/messages.h"
#include "help/information_viewer.h"
#include "platform/environment.h"
#include "records/session_record.h"

namespace benevix {

// The donation history: a text file that is only appended to.
class History {
 public:
  History(Environment& environment, Messages& messages, InformationViewer& viewer)
      : environment_(environment), messages_(messages), viewer_(viewer) {}

  // Appends the session's record in one write and returns it with its time. A failed write is
  // reported to the user, and the record is written with the next one.
  SessionRecord WriteHistory(SessionRecord record, const ListView& list);

  // Retries records that could not be written; called at the end of the program.
  void WritePending();

  // Shows the file if there is one.
  void ShowHistory();

 private:
  [[nodiscard]] std::string File() const { return environment_.info.Resource("history.dat"); }

  Environment& environment_;
  Messages& messages_;
  InformationViewer& viewer_;
  std::string pending_;
};

}  // namespace benevix
