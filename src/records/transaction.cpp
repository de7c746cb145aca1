#include "records/transaction.h"

#include <cmath>

#include "base/format.h"
#include "base/number_text.h"
#include "database/organization_list.h"
#include "records/ui/frmPayOpt.h"

namespace benevix {

float TimerOf(const DateTime& time) {
  return static_cast<float>(time.hour * 3600 + time.minute * 60 + time.second);
}

std::string TransactionId(const Clock& clock, RandomNumbers& random, int option) {
  random.Seed(TimerOf(clock.Now()));
  const std::int32_t number = ToInt32(random.Next() * 1000000);
  const DateTime now = clock.Now();
  const char letter = option == payment::kCreditCard ? 'C' : option == payment::kECheck ? 'E' : 'A';
  return SingleToText(TimerOf(now)) + "-" + std::to_string(number) + "-" +
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

Currency ServiceFeeTotal(const ListView& list) {
  std::int16_t total = 0;
  for (const auto& [row, cells] : list.cells) total = ToInt16(total + Val(cells[column::kFee]));
  return Currency::FromWhole(total);
}

Currency CardFeeTotal(const ListView& list) {
  Currency total;
  for (const auto& [row, cells] : list.cells) total += Currency::FromText(cells[column::kCardFee]);
  return total;
}

Currency ChargedTotal(const SessionValues& values, const FeeRates& rates, const ListView& list,
                      int option, bool addsFees) {
  Currency charged = values.Budget + ServiceFeeTotal(list);
  if (addsFees && option == payment::kCreditCard) charged += CardFeeTotal(list);
  if (addsFees && option == payment::kECheck) charged += rates.SessionFee;
  return charged;
}

const std::string& Payee(const FeeRates& rates, int option) {
  return option == payment::kFundsTransfer ? rates.RatesField7 : rates.RatesField6;
}

std::string PaymentAmount(const SessionValues& values, const FeeRates& rates, Currency serviceFees,
                          int option, bool roundUp) {
  const Currency given = values.TotalDonated + serviceFees;
  double amount = given.ToDouble();
  if (Payee(rates, option) == rates.RatesField6) {
    if (option == payment::kCreditCard) {
      amount =
          (given + rates.CardFixed).ToDouble() + Product(given, rates.CardRate).ToDouble() / 100;
    } else {
      amount = (given + rates.SessionFee).ToDouble();
    }
  }
  std::string text = FormatDouble(amount, kAmountPattern);
  const double shown = Val(text);
  if (roundUp && std::floor(shown) < shown) text = DoubleToText(std::floor(shown) + 1);
  return text;
}

std::string PaymentRequest(const std::string& paymentBase, const std::string& serverBase,
                           const std::string& payee, const std::string& transactionId,
                           const std::string& amount) {
  return paymentBase + payee + "&item_name=Benevix - ID Transaction: " + transactionId +
         "&item_number=" + transactionId + "&amount=" + amount +
         "&no_shipping=1&return=" + serverBase + "thank.html&cancel_return=" + serverBase +
         "cncl.html&no_note=1&tax=0&currency_code=USD";
}

}  // namespace benevix
