#pragma once

#include <functional>
#include <string>

#include "core/messages.h"
#include "forms/frmBVX.h"
#include "help/information_viewer.h"
#include "platform/environment.h"
#include "records/session_record.h"

namespace benevix {

// What a command says that needs the history while there is none.
inline constexpr const char* kNoHistory =
    "There is no donation history yet: it begins with the first session that you send";

// The donation history: a text file that is only appended to.
class History {
 public:
  History(Environment& environment, Messages& messages, InformationViewer& viewer, frmBVX& main)
      : environment_(environment), messages_(messages), viewer_(viewer), main_(main) {}

  // Called with records that were written.
  std::function<void(const std::string& records)> onWritten = [](const std::string&) {};

  // Appends the session's record in one write and returns it with its time. A failed write is
  // reported to the user, and the record is written with the next one.
  SessionRecord WriteHistory(SessionRecord record, const ListView& list);

  // Retries records that could not be written, a last time; called at the end of the program.
  void WritePending();

  // Whether every record is in the file.
  [[nodiscard]] bool IsWritten() const { return pending_.empty(); }
  // Whether the file has the whole record of the transaction, up to the empty line that ends it;
  // false when it cannot be read.
  [[nodiscard]] bool Holds(const std::string& transactionId) const;

  // Shows the file; without one the guidance line says so.
  void ShowHistory();

 private:
  // `ifNot` tells the user what happens with records that cannot be written.
  void TryToWrite(const std::string& ifNot);
  [[nodiscard]] FilePath File() const { return environment_.info.Resource("history.dat"); }

  Environment& environment_;
  Messages& messages_;
  InformationViewer& viewer_;
  frmBVX& main_;
  std::string pending_;
};

}  // namespace benevix
