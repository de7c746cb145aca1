#pragma once

#include <string>
#include <vector>

#include "base/currency.h"
#include "controls/list_view.h"
#include "platform/clock.h"

namespace benevix {

// A finalized session as shown in the history and the printout.
struct SessionRecord {
  std::string transactionId;
  std::string amountText;  // the payment amount as sent
  Currency budget;
  Currency charged;  // Budget plus the fees that the user pays
  DateTime time;     // when it was recorded
};

// The lines of a record, without line ends.
std::string HeadingLine(const DateTime& time);
std::string TransactionLine(const SessionRecord& record);
// One line for each row with a donation.
std::vector<std::string> OrganizationLines(const ListView& list);
// Raises RuntimeError if the amount is beyond a currency.
std::string PaymentLine(const SessionRecord& record);

}  // namespace benevix
