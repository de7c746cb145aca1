#pragma once

#include <string>

#include "base/currency.h"
#include "controls/list_view.h"
#include "session/session_values.h"

namespace benevix {

// What a session costs: the sums over its rows, and what is to be paid.

// Sum of the Fee column, rounded to whole dollars (halves to even) after each addition, 16 bits.
Currency ServiceFeeTotal(const ListView& list);
// Sum of the CC Fee column.
Currency CardFeeTotal(const ListView& list);

// Budget plus the fees that the user pays: the service fees, and when fees come on top those of the
// payment option.
Currency ChargedTotal(const SessionValues& values, const FeeRates& rates, const ListView& list,
                      int option, bool addsFees);

// What is to be paid, "###.#0", rounded up to whole dollars when asked for. The payee decides
// between funds transfer and the rest: equal accounts are charged as the first one.
std::string PaymentAmount(const SessionValues& values, const FeeRates& rates, Currency serviceFees,
                          int option, bool roundUp);

// The account that the payment goes to.
const std::string& Payee(const FeeRates& rates, int option);

}  // namespace benevix
