#pragma once

#include <string>

#include "giving/giving_figures.h"

namespace benevix {

// The gifts of a range as a table for a spreadsheet (RFC 4180): UTF-8 with a mark at its start, a
// line of headings, then one line a gift with all that the history knows, the oldest first. Dates
// are YYYY-MM-DD, amounts have a point. Cancelled sessions are there, too, with their state; the
// amounts of a session stand at each of its gifts.
std::string GiftsCsv(const GivenHistory& history, const DayRange& range,
                     const StateOfTransaction& stateOf);

// "Paid", "Cancelled" or "Not known".
std::string StateText(PaymentState state);

}  // namespace benevix
