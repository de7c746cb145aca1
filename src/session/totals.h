#pragma once

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "session/session_values.h"

namespace benevix {

// TotalDonated = the sum of the Amount column. Raises RuntimeError on overflow.
void RecalcTotalDonated(SessionValues& values, const ListView& list);

// Refreshes the totals (method73): the Budget and Balance boxes, the hint for what comes next,
// Continue, and the focus to the list.
void method73(const SessionValues& values, frmBVX& main, Desk& desk);

}  // namespace benevix
