#include "records/session_record.h"

#include "base/format.h"
#include "core/date_text.h"
#include "database/organization_list.h"
#include "session/options_record.h"

namespace benevix {
namespace {

const std::string kIndent(13, ' ');

}  // namespace

std::string HeadingLine(const DateTime& time) {
  return "-- " + DateText(time) + " @ " + TimeText(time);
}

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
    if (AsksForProof(options)) line += " - Send Proof: [X]";
    if (AsksForCertificate(options)) line += " - Tax Certificate: [X]";
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

}  // namespace benevix
