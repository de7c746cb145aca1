#pragma once

#include <cstdint>
#include <string>

#include "base/currency.h"

namespace benevix {

// The amounts of the donation session; the program has one set.
struct SessionValues {
  Currency Budget;               // the maximum to donate
  Currency BudgetEntered;        // Budget at the last accepted entry
  Currency Balance;              // what is left
  Currency Donation;             // the amount being given
  Currency TotalDonated;         // sum of the Amount column
  Currency BvxFee;               // service fee of the donation being entered
  Currency CardFee;              // card fee of the donation being entered
  bool SessionFeeTaken = false;  // the e-check fee was deducted
};

// The fee rates: those of the server, or these defaults.
struct FeeRates {
  std::int16_t PoolFee = 2;                        // whole dollars per donation
  std::int16_t StandAloneFee = 3;                  // whole dollars per donation
  Currency CardRate = Currency::FromUnits(29000);  // percent
  Currency CardFixed = Currency::FromUnits(3000);  // dollars per card fee
  Currency SessionFee = Currency::FromWhole(5);    // dollars per session paid by e-check
  std::string RatesField6;                         // payee account for card and e-check
  std::string RatesField7;                         // payee account for funds transfer
  // As published; the card fees of a session raise CardRate.
  Currency PublishedCardRate = CardRate;
  Currency PublishedCardFixed = CardFixed;
};

}  // namespace benevix
