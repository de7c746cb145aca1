#pragma once

#include <string>
#include <string_view>

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

// Where the payment page comes back to on the server, paid or cancelled.
inline constexpr const char* kThankPage = "thank.html";
inline constexpr const char* kCancelPage = "cncl.html";

// The address of the payment page.
std::string PaymentRequest(const std::string& paymentBase, const std::string& serverBase,
                           const std::string& payee, const std::string& transactionId,
                           const std::string& amount);
// The transaction that a payment page is for; empty for another page.
std::string TransactionPaidOn(std::string_view address);

}  // namespace benevix
