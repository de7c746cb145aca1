#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "request_fields.h"

namespace benevix {

// The pages that are made on request. Values come as 8-bit text (Windows-1252) from anywhere and
// are escaped here.

// The confirmation of the mail script; it says "Thank You".
std::string MailSentPage(const std::vector<RequestField>& fields);

// What the payment page was asked to collect.
std::string PaymentPage(const std::vector<RequestField>& fields);

// A page for an HTTP error; the status stands in it.
std::string ErrorPage(int status, std::string_view reason);

}  // namespace benevix
