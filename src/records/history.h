#pragma once

#include <string>

#include "controls/desk.h"
#include "core/messages.h"
#include "forms/frmInfo.h"
#include "platform/surroundings.h"
#include "records/session_record.h"

namespace benevix {

// The donation history: a text file that only grows.
class History {
 public:
  History(Surroundings& surroundings, Messages& messages, Desk& desk, frmInfo& viewer)
      : surroundings_(surroundings), messages_(messages), desk_(desk), viewer_(viewer) {}

  // Appends the session's record in one write. `heading` becomes "ID,amount,date @ time". A record
  // that cannot be written is told to the user, kept, and tried again with the next one.
  void WriteHistory(const SessionRecord& record, const ListView& list, std::string& heading);

  // Tries once more to write what could not be written; at the end of the program.
  void WritePending();

  // Shows the file as it stands; nothing without one.
  void ShowHistory();

 private:
  [[nodiscard]] std::string File() const { return surroundings_.info.Resource("history.dat"); }

  Surroundings& surroundings_;
  Messages& messages_;
  Desk& desk_;
  frmInfo& viewer_;
  std::string pending_;
};

}  // namespace benevix
