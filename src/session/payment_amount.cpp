#include "session/payment_amount.h"

#include <cmath>

#include "base/format.h"
#include "base/number_text.h"
#include "database/organization_list.h"
#include "forms/frmPayOpt.h"

namespace benevix {

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

}  // namespace benevix
