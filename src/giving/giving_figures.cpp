#include "giving/giving_figures.h"

#include <algorithm>
#include <tuple>

namespace benevix {
namespace {

int MonthsSinceZero(const Day& day) {
  return day.year * 12 + day.month - 1;
}

// The months of a range, or its years when it is longer than two of them.
class Periods {
 public:
  explicit Periods(const DayRange& range)
      : byYear_(MonthsSinceZero(range.to) - MonthsSinceZero(range.from) >= 24),
        first_(IndexOf(range.from)),
        periods_(static_cast<std::size_t>(std::max(0, IndexOf(range.to) - first_ + 1))) {
    static constexpr const char* months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                             "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    int index = first_;
    for (GivingPeriod& period : periods_) {
      period.name = byYear_ ? std::to_string(index)
                            : std::string(months[index % 12]) + " " + std::to_string(index / 12);
      ++index;
    }
  }

  void Add(const Day& day, Currency amount) {
    periods_[static_cast<std::size_t>(IndexOf(day) - first_)].given += amount;
  }
  [[nodiscard]] bool AreYears() const { return byYear_; }
  std::vector<GivingPeriod> Take() { return std::move(periods_); }

 private:
  [[nodiscard]] int IndexOf(const Day& day) const {
    return byYear_ ? day.year : MonthsSinceZero(day);
  }

  bool byYear_;
  int first_;
  std::vector<GivingPeriod> periods_;
};

}  // namespace

GivingFigures FiguresOf(const GivenHistory& history, const DayRange& range,
                        const StateOfTransaction& stateOf) {
  GivingFigures figures;
  Periods periods(range);
  std::vector<OrganizationGifts> organizations(history.Organizations().size());
  const SessionList& sessions = history.Sessions();
  for (std::uint32_t index = 0; index < sessions.size(); ++index) {
    const GivenSession& session = sessions[index];
    if (!range.Has(session.day)) continue;
    figures.sessions.push_back(index);
    const PaymentState state = stateOf(history.Transaction(session));
    if (state == PaymentState::Cancelled) continue;
    ++figures.counted;
    if (state == PaymentState::NotKnown) ++figures.notKnown;
    figures.given += session.given;
    figures.serviceFees += session.serviceFee;
    figures.cardFees += session.cardFee;
    figures.paid += session.paid;
    periods.Add(session.day, session.given);
    for (std::uint32_t i = session.firstGift; i < session.firstGift + session.gifts; ++i) {
      const Gift& gift = history.Gifts()[i];
      OrganizationGifts& sum = organizations[gift.organization];
      ++sum.gifts;
      if (gift.certificate) ++sum.certificates;
      sum.total += gift.amount;
      sum.last = std::max(sum.last, session.day);
    }
  }
  for (std::uint32_t index = 0; index < organizations.size(); ++index) {
    if (organizations[index].gifts == 0) continue;
    figures.organizations.push_back(organizations[index]);
    figures.organizations.back().organization = index;
  }
  std::stable_sort(figures.organizations.begin(), figures.organizations.end(),
                   [](const auto& a, const auto& b) { return a.total > b.total; });
  // As a rule they stand in the order of time.
  const auto isBefore = [&](std::uint32_t a, std::uint32_t b) {
    const GivenSession &left = sessions[a], &right = sessions[b];
    return std::tie(left.day, left.hour, left.minute) <
           std::tie(right.day, right.hour, right.minute);
  };
  if (!std::is_sorted(figures.sessions.begin(), figures.sessions.end(), isBefore)) {
    std::stable_sort(figures.sessions.begin(), figures.sessions.end(), isBefore);
  }
  std::reverse(figures.sessions.begin(), figures.sessions.end());
  figures.byYear = periods.AreYears();
  figures.periods = periods.Take();
  return figures;
}

std::optional<DayRange> WholeRange(const GivenHistory& history) {
  const SessionList& sessions = history.Sessions();
  if (sessions.empty()) return std::nullopt;
  const auto [first, last] = std::minmax_element(
      sessions.begin(), sessions.end(), [](const auto& a, const auto& b) { return a.day < b.day; });
  return DayRange{first->day, last->day};
}

}  // namespace benevix
