#pragma once

#include "forms/frmReport.h"
#include "giving/report_tables.h"

namespace benevix {

// The pictures of the report: what was given in each month or year, the shares of the largest
// organizations with the others as one, and how near the goal of the year is.
void ShowPeriods(frmReport& window, const GivingFigures& figures, const DayRange& range);
void ShowShares(Chart& chart, const ReportContents& report);
// Without a goal there is none to see.
void ShowGoal(MoneyBar& bar, Currency given, Currency goal);

}  // namespace benevix
