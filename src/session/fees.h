#pragma once

#include <string>

#include "forms/frmBVX.h"
#include "session/session_values.h"

namespace benevix {

// Whether the donor's country makes card fees one point dearer.
bool IsForeign(const std::string& country);

// The rate and fixed part that the next card fee uses: 2.9 and 0.3 when either is 0, one point more
// for a foreign donor.
FeeRates NextCardRates(FeeRates rates, bool foreign);

// ((donation + service fee) x CardRate) / 100 + CardFixed; the product in currency, the rest in
// double precision, rounded to four decimals. Raises RuntimeError on overflow.
Currency CardFeeOf(Currency donation, Currency serviceFee, const FeeRates& rates);

// The card fee of the donation being entered. The rates keep what NextCardRates made of them, so
// that each computation for a foreign donor adds one more point.
Currency ComputeCardFee(const SessionValues& values, FeeRates& rates, bool foreign);

// Reads the rates from the text of the server's file, or sets the defaults when it is empty or an
// error page; labels the two delivery options with their fees, once. Raises RuntimeError for
// numbers beyond their type, with the values read so far.
void ReadFeeRates(const std::string& text, FeeRates& rates, frmBVX& main);

}  // namespace benevix
