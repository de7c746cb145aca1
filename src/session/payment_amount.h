#pragma once

#include <string>

#include "base/currency.h"
#include "controls/list_view.h"
#include "session/session_values.h"

namespace benevix {

// What a session costs. Every routine but Payee raises RuntimeError on overflow.

// Sum of the Fee column, rounded to 16-bit whole dollars (halves to even) after each addition.
Currency ServiceFeeTotal(const ListView& list);
// Sum of the CC Fee column.
Currency CardFeeTotal(const ListView& list);

// The Budget plus the service fees and, with `addsFees`, the card or e-check fees of the option.
Currency ChargedTotal(const SessionValues& values, const FeeRates& rates, const ListView& list,
                      int option, bool addsFees);

// The amount to pay, formatted "###.#0"; with `roundUp` rounded up to whole dollars. Intended:
// funds transfer is recognized by its payee, so with equal accounts it is charged like an e-check.
std::string PaymentAmount(const SessionValues& values, const FeeRates& rates, Currency serviceFees,
                          int option, bool roundUp);

// The payee account of a payment option.
const std::string& Payee(const FeeRates& rates, int option);

}  // namespace benevix
