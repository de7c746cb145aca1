#pragma once

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "session/session_values.h"

namespace benevix {

// Sets TotalDonated to the sum of the Amount column. Raises RuntimeError on overflow.
void RecalcTotalDonated(SessionValues& values, const ListView& list);

// Refreshes the totals (fixed name): shows Budget, Balance (red once used up) and the next hint,
// opens Continue and focuses the list.
void method73(const SessionValues& values, frmBVX& main, Desk& desk);

// Enables Continue if the Balance does not exceed the last service fee.
void OpenContinue(const SessionValues& values, frmBVX& main);

// Whether something is given and nothing is left.
bool IsAllGiven(const SessionValues& values);

// Whether donations can be given: the Budget box shows a Budget, not only a text that is still
// being typed.
bool HasBudget(const SessionValues& values, const frmBVX& main);

// Gives the Budget box the look of an accepted Budget.
void MarkBudgetAccepted(frmBVX& main);

}  // namespace benevix
