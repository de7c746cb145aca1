#include "records/history.h"

#include <utility>

#include "base/runtime_error.h"
#include "platform/line_reader.h"

namespace benevix {

SessionRecord History::WriteHistory(SessionRecord record, const ListView& list) {
  record.time = environment_.clock.Now();
  const std::string end = "\r\n";
  // Intended: two readings of the clock. The printout shows the first, the history this one.
  std::string text = HeadingLine(environment_.clock.Now()) + end;
  text += TransactionLine(record) + end;
  for (const std::string& line : OrganizationLines(list)) text += line + end;
  text += PaymentLine(record) + end + end;
  pending_ += text;  // only a whole record
  TryToWrite("It is kept and written with the next one.");
  return record;
}

void History::WritePending() {
  TryToWrite("The program ends, so that it will be missing there.");
}

void History::TryToWrite(const std::string& ifNot) {
  if (pending_.empty()) return;
  try {
    environment_.files.Append(File(), pending_);
    onWritten(std::exchange(pending_, {}));
  } catch (const RuntimeError& error) {
    messages_.Show("The session could not be written to the history. " + ifNot + "\r\n" +
                       std::string(error.what()),
                   BoxIcon::Critical);
  }
}

bool History::Holds(const std::string& transactionId) const {
  const std::string id = "Transaction ID: " + transactionId + " ";
  try {
    LineReader lines(environment_.files.Open(File()));
    bool found = false;
    while (const auto line = lines.Next()) {
      if (found && line->find_first_not_of('\r') == std::string_view::npos) return true;
      found = found || line->find(id) != std::string_view::npos;
    }
  } catch (const RuntimeError&) {
    // Nobody can say that it is there.
  }
  return false;
}

void History::ShowHistory() {
  if (!environment_.files.Exists(File())) {
    main_.Label6.caption = kNoHistory;
    return;
  }
  viewer_.ShowPage(Page::File(File()), "Donation History");
}

}  // namespace benevix
