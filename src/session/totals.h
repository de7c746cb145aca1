#pragma once

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "session/session_values.h"

namespace benevix {

// TotalDonated = the sum of the Amount column. Raises RuntimeError on overflow.
void RecalcTotalDonated(SessionValues& values, const ListView& list);

// Refreshes the totals (the name is fixed): shows Budget and Balance, the Balance in red once it is
// used up, says what comes next, opens Continue, and gives the list the focus.
void method73(const SessionValues& values, frmBVX& main, Desk& desk);

// The Budget box as it looks once a Budget was accepted.
void MarkBudgetAccepted(frmBVX& main);

}  // namespace benevix
