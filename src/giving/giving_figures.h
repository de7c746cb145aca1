#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "giving/given_history.h"
#include "records/payment_state.h"

namespace benevix {

using StateOfTransaction = std::function<PaymentState(std::string_view transaction)>;

// What was given in a month or in a year.
struct GivingPeriod {
  std::string name;  // "Jan 2026", or "2026"
  Currency given;
};

struct OrganizationGifts {
  std::uint32_t organization = 0;
  int gifts = 0, certificates = 0;
  Currency total;
  Day last;
};

// What was given in a range of days. Sessions that were cancelled count nowhere but in `sessions`.
struct GivingFigures {
  std::vector<GivingPeriod> periods;             // without a gap
  bool byYear = false;                           // the periods are years, beyond two years
  std::vector<OrganizationGifts> organizations;  // the largest total first
  std::vector<std::uint32_t> sessions;           // the newest first
  Currency given, serviceFees, cardFees, paid;
  int counted = 0;   // sessions in the totals
  int notKnown = 0;  // those of them of which nobody knows whether they were paid
};

GivingFigures FiguresOf(const GivenHistory& history, const DayRange& range,
                        const StateOfTransaction& stateOf);

// From the first day to the last; nothing in an empty history.
std::optional<DayRange> WholeRange(const GivenHistory& history);

}  // namespace benevix
