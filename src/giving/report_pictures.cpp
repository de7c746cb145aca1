#include "giving/report_pictures.h"

#include <algorithm>

#include "base/format.h"

namespace benevix {
namespace {

constexpr std::size_t kLargest = 5;  // organizations with a share of their own

std::string Sum(Currency amount) {
  return Format(amount, kSumPattern);
}

Chart::Mark ShareOf(const std::string& name, Currency amount, Currency whole) {
  const double percent = whole > Currency() ? amount.ToDouble() / whole.ToDouble() * 100 : 0;
  std::string share = FormatDouble(percent, "##0");
  share = share.substr(0, share.find('.')) + "%";
  return {name, amount, name + ": " + Sum(amount) + " (" + share + ")", share};
}

}  // namespace

void ShowPeriods(frmReport& window, const GivingFigures& figures, const DayRange& range) {
  window.PeriodsTitle.caption = figures.byYear ? "By year" : "By month";
  window.Periods.marks.clear();
  for (const GivingPeriod& period : figures.periods) {
    // Within one year its number says nothing new.
    const bool inOneYear = range.from.year == range.to.year;
    window.Periods.marks.push_back({inOneYear ? period.name.substr(0, 3) : period.name,
                                    period.given, period.name + ": " + Sum(period.given)});
  }
}

void ShowShares(Chart& chart, const ReportContents& report) {
  // The figures may be sorted in another way.
  auto organizations = report.figures.organizations;
  const std::size_t shown = std::min(kLargest, organizations.size());
  std::partial_sort(organizations.begin(),
                    organizations.begin() + static_cast<std::ptrdiff_t>(shown), organizations.end(),
                    [](const auto& a, const auto& b) { return a.total > b.total; });
  const Currency whole = report.figures.given;
  chart.marks.clear();
  Currency rest = whole;
  for (std::size_t i = 0; i < shown; ++i) {
    const std::string name(report.history.Organizations()[organizations[i].organization]);
    chart.marks.push_back(ShareOf(name, organizations[i].total, whole));
    rest -= organizations[i].total;
  }
  const std::size_t others = organizations.size() - shown;
  if (others == 0) return;
  chart.marks.push_back(
      ShareOf(std::to_string(others) + (others == 1 ? " other" : " others"), rest, whole));
}

void ShowGoal(MoneyBar& bar, Currency given, Currency goal) {
  bar.visible = goal > Currency();
  bar.parts.clear();
  if (!bar.visible) return;
  using Use = MoneyBar::Part::Use;
  const Currency missing = std::max(goal - given, Currency());
  bar.parts = {{Use::Given, "Given", given}};
  if (missing > Currency()) bar.parts.push_back({Use::Left, "Missing", missing});
  bar.remark = missing > Currency() ? "" : "Reached";
  bar.toolTip = "Given " + Sum(given) + " of " + Sum(goal) + ", " + Sum(missing) + " missing";
}

}  // namespace benevix
