#pragma once

#include <string>

#include "controls/list_view.h"
#include "platform/clock.h"
#include "platform/random_numbers.h"

namespace benevix {

// The texts of a finalization.

float SecondsSinceMidnight(const DateTime& time);

// Seconds since midnight, "-", a random whole number from 0 to 1000000, "-", year, month and day
// without padding, and the letter of the payment option: C, A or E. Initializes `random` with the
// time.
std::string TransactionId(const Clock& clock, RandomNumbers& random, int option);

// "," and the options record of each organization row that carries a donation, in list order.
std::string OrganizationRecords(const ListView& list);

// The address of the payment page.
std::string PaymentRequest(const std::string& paymentBase, const std::string& serverBase,
                           const std::string& payee, const std::string& transactionId,
                           const std::string& amount);

}  // namespace benevix
