#include "records/session_record.h"

#include <cstdio>

#include "base/format.h"
#include "base/number_text.h"
#include "database/organization_list.h"

namespace benevix {
namespace {

const std::string kIndent(13, ' ');

// Whether the character `back` places from the record's end is a 1.
bool HasFlag(const std::string& record, std::size_t back) {
  return record.size() >= back && Val(record.substr(record.size() - back, 1)) == 1;
}

}  // namespace

std::string TransactionLine(const SessionRecord& record) {
  return kIndent + "Transaction ID: " + record.transactionId + " - Budget: $" +
         record.budget.ToText();
}

std::vector<std::string> OrganizationLines(const ListView& list) {
  std::vector<std::string> lines;
  for (const auto& [row, cells] : list.cells) {
    const std::string& options = cells[column::kRecord];
    if (options.empty()) continue;
    std::string line = kIndent + "Organization: " + list.SubItem(row, column::kOrganization) +
                       " -  Amount: $" + list.SubItem(row, column::kAmount) +
                       " -  From: " + list.SubItem(row, column::kFrom) +
                       " -  Method: " + list.SubItem(row, column::kPool);
    if (HasFlag(options, 1)) line += " - Send Proof: [X]";
    if (HasFlag(options, 3)) line += " - Tax Certificate: [X]";
    lines.push_back(line);
  }
  return lines;
}

std::string PaymentLine(const SessionRecord& record) {
  const Currency serviceFee = record.charged - record.budget;
  const Currency cardFee = Currency::FromText(record.amountText) - record.charged;
  return kIndent + "Payment: $" + record.amountText + " - BVX Fee: $ " +
         Format(serviceFee, kFeePattern) + " - CC Fee: $" + Format(cardFee, kFeePattern);
}

std::string DateText(const DateTime& time) {
  char text[32];
  std::snprintf(text, sizeof text, "%02d-%02d-%04d", time.month, time.day, time.year);
  return text;
}

std::string TimeText(const DateTime& time) {
  char text[32];
  std::snprintf(text, sizeof text, "%02d:%02d", time.hour, time.minute);
  return text;
}

}  // namespace benevix
