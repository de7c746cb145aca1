#pragma once

#include <string>

#include "forms/frmBVX.h"
#include "session/session_values.h"

namespace benevix {

// Whether the donor's country raises the card rate: any but "U.S.A.", ignoring case.
bool IsForeign(const std::string& country);

// The rates with the card rate and fixed part of the next card fee: the defaults if either is 0,
// and one percentage point more for a foreign donor.
FeeRates NextCardRates(FeeRates rates, bool foreign);

// The service fee of a donation, by its delivery.
Currency ServiceFeeOf(const FeeRates& rates, bool pool);

// ((donation + service fee) x CardRate) / 100 + CardFixed; the product in currency, the rest in
// double precision, rounded to four decimals. Raises RuntimeError on overflow.
Currency CardFeeOf(Currency donation, Currency serviceFee, const FeeRates& rates);

// The card fee of the donation being entered; raises as CardFeeOf. Intended: it stores the result
// of NextCardRates, so each computation for a foreign donor raises the rate by another point.
Currency ComputeCardFee(const SessionValues& values, FeeRates& rates, bool foreign);

// Reads the server's rates file: seven fields separated by commas, in the order of FeeRates. An
// empty text or an error page (one with "<") sets the defaults but keeps the accounts. Adds the
// fees to the tooltips of the delivery options, once. Raises RuntimeError for a number beyond its
// type; the values read before it are kept.
void ReadFeeRates(const std::string& text, FeeRates& rates, frmBVX& main);

}  // namespace benevix
