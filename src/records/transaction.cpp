#include "records/transaction.h"

#include "base/number_text.h"
#include "database/organization_list.h"
#include "forms/frmPayOpt.h"

namespace benevix {
namespace {

const std::string kItemNumber = "&item_number=";

}  // namespace

float SecondsSinceMidnight(const DateTime& time) {
  return static_cast<float>(time.hour * 3600 + time.minute * 60 + time.second);
}

std::string TransactionId(const Clock& clock, RandomNumbers& random, int option) {
  random.Seed(SecondsSinceMidnight(clock.Now()));
  const std::int32_t number = ToInt32(random.Next() * 1000000);
  const DateTime now = clock.Now();
  const char letter = option == payment::kCreditCard ? 'C' : option == payment::kECheck ? 'E' : 'A';
  return SingleToText(SecondsSinceMidnight(now)) + "-" + std::to_string(number) + "-" +
         std::to_string(now.year) + std::to_string(now.month) + std::to_string(now.day) + letter;
}

std::string OrganizationRecords(const ListView& list) {
  std::string records;
  for (const auto& [row, cells] : list.cells) {
    if (list.Text(row).empty() && !cells[column::kRecord].empty()) {
      records += "," + cells[column::kRecord];
    }
  }
  return records;
}

std::string PaymentRequest(const std::string& paymentBase, const std::string& serverBase,
                           const std::string& payee, const std::string& transactionId,
                           const std::string& amount) {
  return paymentBase + payee + "&item_name=Benevix - ID Transaction: " + transactionId +
         kItemNumber + transactionId + "&amount=" + amount + "&no_shipping=1&return=" + serverBase +
         kThankPage + "&cancel_return=" + serverBase + kCancelPage +
         "&no_note=1&tax=0&currency_code=USD";
}

std::string TransactionPaidOn(std::string_view address) {
  const auto begin = address.find(kItemNumber);
  if (begin == std::string_view::npos) return {};
  address.remove_prefix(begin + kItemNumber.size());
  return std::string(address.substr(0, address.find('&')));
}

}  // namespace benevix
