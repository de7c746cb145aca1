#pragma once

#include <string>

#include "forms/frmPersInfo.h"
#include "giving/giving_figures.h"
#include "platform/printer.h"

namespace benevix {

// Who gave, and who says so when.
struct StatementHead {
  const frmPersInfo& donor;
  std::string product;
  Day today;
};

// A statement of the gifts of a range for the donor's tax return: name and address, the range, one
// line a gift, the oldest first, and the total. Cancelled sessions are left out; gifts of sessions
// of which nobody knows whether they were paid are marked.
PrintDocument StatementOf(const GivenHistory& history, const DayRange& range,
                          const StateOfTransaction& stateOf, const StatementHead& head);

}  // namespace benevix
