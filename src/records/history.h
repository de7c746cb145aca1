#pragma once

#include <string>

#include "core/messages.h"
#include "help/information_viewer.h"
#include "platform/surroundings.h"
#include "records/session_record.h"

namespace benevix {

// The donation history: a text file that only grows.
class History {
 public:
  History(Surroundings& surroundings, Messages& messages, InformationViewer& viewer)
      : surroundings_(surroundings), messages_(messages), viewer_(viewer) {}

  // Appends the session's record in one write; gives it with its time. A record that cannot be
  // written is told to the user, kept, and tried again with the next one.
  SessionRecord WriteHistory(SessionRecord record, const ListView& list);

  // Tries once more to write what could not be written; at the end of the program.
  void WritePending();

  // Shows the file as it stands; nothing without one.
  void ShowHistory();

 private:
  [[nodiscard]] std::string File() const { return surroundings_.info.Resource("history.dat"); }

  Surroundings& surroundings_;
  Messages& messages_;
  InformationViewer& viewer_;
  std::string pending_;
};

}  // namespace benevix
