#include "giving/past_gifts.h"

#include "base/format.h"
#include "base/runtime_error.h"
#include "database/organization_list.h"

namespace benevix {

PastGifts::Index PastGifts::IndexOf(const GivenHistory& history,
                                    const PaymentStates::States& states) {
  std::vector<Sum> sums(history.Organizations().size());
  for (const GivenSession& session : history.Sessions()) {
    if (StateOf(states, history.Transaction(session)) == PaymentState::Cancelled) continue;
    for (std::uint32_t i = session.firstGift; i < session.firstGift + session.gifts; ++i) {
      const Gift& gift = history.Gifts()[i];
      Sum& sum = sums[gift.organization];
      if (session.day.year > sum.last.year) sum.lastYear = Currency();
      if (session.day.year >= sum.last.year) sum.lastYear += gift.amount;
      sum.last = std::max(sum.last, session.day);
      sum.total += gift.amount;
      ++sum.gifts;
    }
  }
  Index index;
  for (std::size_t i = 0; i < sums.size(); ++i) {
    if (sums[i].gifts > 0) index.emplace(history.Organizations()[i], sums[i]);
  }
  return index;
}

void PastGifts::Read() {
  const FilePath file = environment_.info.Resource("history.dat");
  index_.clear();
  coming_ = {};
  try {
    if (!environment_.files.Exists(file)) return;
    const auto read = [&files = environment_.files, file, states = states_.Read()] {
      try {
        return IndexOf(GivenHistory(files, file), states);
      } catch (const RuntimeError&) {
        return Index();
      }
    };
    // A short one is there at once.
    constexpr std::size_t isShort = std::size_t{1} << 20;
    if (environment_.files.Open(file)->Size() < isShort) {
      index_ = read();
    } else {
      coming_ = std::async(std::launch::async, read);
    }
  } catch (const RuntimeError&) {
    // A history that cannot be read tells nothing here.
  }
}

void PastGifts::Show() {
  if (coming_.valid() && coming_.wait_for(std::chrono::seconds(0)) == std::future_status::ready) {
    index_ = coming_.get();
  }
  const ListView& list = main_.ListView1;
  const bool isOrganization = list.selected != 0 && list.Text(list.selected).empty();
  main_.PastGifts.visible = isOrganization && !coming_.valid();
  main_.PastGiftsText.caption =
      main_.PastGifts.visible ? TextOf(list.SelectedText(column::kOrganization)) : "";
}

std::string PastGifts::TextOf(const std::string& organization) const {
  const auto found = index_.find(organization);
  if (found == index_.end()) return "None yet";
  const Sum& sum = found->second;
  const bool isThisYear = sum.last.year == environment_.clock.Now().year;
  return std::to_string(sum.gifts) + (sum.gifts == 1 ? " gift, " : " gifts, ") +
         Format(sum.total, kSumPattern) + " in all, " +
         Format(isThisYear ? sum.lastYear : Currency(), kSumPattern) + " this year, last on " +
         DayText(sum.last);
}

}  // namespace benevix
