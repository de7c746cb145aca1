#include "records/history.h"

#include "base/runtime_error.h"

namespace benevix {

SessionRecord History::WriteHistory(SessionRecord record, const ListView& list) {
  record.time = surroundings_.clock.Now();
  const std::string end = "\r\n";
  // Intended: the clock is read again, as the heading shows when the record is written.
  pending_ += HeadingLine(surroundings_.clock.Now()) + end;
  pending_ += TransactionLine(record) + end;
  for (const std::string& line : OrganizationLines(list)) pending_ += line + end;
  pending_ += PaymentLine(record) + end + end;
  WritePending();
  return record;
}

void History::WritePending() {
  if (pending_.empty()) return;
  try {
    surroundings_.files.Append(File(), pending_);
    pending_.clear();
  } catch (const RuntimeError& error) {
    messages_.Show(
        "The session could not be written to the history. It is kept and written "
        "with the next one.\r\n" +
            std::string(error.what()),
        BoxIcon::Critical);
  }
}

void History::ShowHistory() {
  if (!surroundings_.files.Exists(File())) return;
  viewer_.ShowPage(File(), "Donation History");
}

}  // namespace benevix
