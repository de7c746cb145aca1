#include "records/history.h"

#include "base/runtime_error.h"

namespace benevix {
namespace {

std::string DateAndTime(const DateTime& time) {
  return DateText(time) + " @ " + TimeText(time);
}

}  // namespace

void History::WriteHistory(const SessionRecord& record, const ListView& list,
                           std::string& heading) {
  heading =
      record.transactionId + "," + record.amountText + "," + DateAndTime(surroundings_.clock.Now());
  const std::string end = "\r\n";
  std::string text = "-- " + DateAndTime(surroundings_.clock.Now()) + end;
  text += TransactionLine(record) + end;
  for (const std::string& line : OrganizationLines(list)) text += line + end;
  text += PaymentLine(record) + end + end;
  pending_ += text;
  WritePending();
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
  desk_.Load(viewer_);
  viewer_.ShowPage(File(), "Donation History");
  desk_.Show(viewer_);
}

}  // namespace benevix
