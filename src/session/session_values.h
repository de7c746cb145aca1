#pragma once

#include <cstdint>
#include <string>

#include "base/currency.h"

namespace benevix {

// The money of the donation session; one set for the whole program.
struct SessionValues {
  Currency Budget;         // whole dollars as typed
  Currency BudgetEntered;  // Budget at the last accepted entry
  Currency Balance;        // what is left
  Currency Donation;       // the amount being given
  Currency TotalDonated;   // sum of the Amount column
  Currency BvxFee;         // service fee of the donation being entered
  Currency CardFee;        // card fee of the donation being entered
  bool SessionFeeTaken = false;
};

// The fee rates; the server's when it published them.
struct FeeRates {
  std::int16_t PoolFee = 2;                        // whole dollars a donation
  std::int16_t StandAloneFee = 3;                  // whole dollars a donation
  Currency CardRate = Currency::FromUnits(29000);  // percent
  Currency CardFixed = Currency::FromUnits(3000);
  Currency SessionFee = Currency::FromWhole(5);
  std::string RatesField6;  // payee account for card and e-check
  std::string RatesField7;  // payee account for funds transfer
  // As read; the card fees of a session raise CardRate.
  Currency PublishedCardRate = CardRate;
  Currency PublishedCardFixed = CardFixed;
};

}  // namespace benevix
