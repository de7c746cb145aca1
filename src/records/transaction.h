#pragma once

#include <cstdint>
#include <string>

#include "base/currency.h"
#include "controls/list_view.h"
#include "platform/clock.h"
#include "platform/random_numbers.h"
#include "session/session_values.h"

namespace benevix {

// The pure sums and texts of a finalization.

// Seconds since midnight.
float TimerOf(const DateTime& time);

// Timer, "-", a random whole number below 1000000, "-", year, month and day without padding, and
// the letter of the payment option: C, A or E.
std::string TransactionId(const Clock& clock, RandomNumbers& random, int option);

// "," and the options record of each organization row that carries a donation, in list order.
std::string OrganizationRecords(const ListView& list);

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

// The address of the payment page.
std::string PaymentRequest(const std::string& paymentBase, const std::string& serverBase,
                           const std::string& payee, const std::string& transactionId,
                           const std::string& amount);

}  // namespace benevix
