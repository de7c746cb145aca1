#include "giving/past_gifts.h"

#include "base/format.h"
#include "base/runtime_error.h"
#include "database/organization_list.h"

namespace benevix {

namespace {

template <class T>
bool IsReady(const std::future<T>& future) {
  return future.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

}  // namespace

void PastGifts::AddTo(Index& index, const GivenHistory& history, const TransactionStates& states) {
  // By their numbers first, so that a name is looked up once.
  std::vector<Sum*> sums(history.Organizations().size());
  for (const GivenSession& session : history.Sessions()) {
    if (StateOf(states, history.Transaction(session)) == PaymentState::Cancelled) continue;
    for (std::uint32_t i = session.firstGift; i < session.firstGift + session.gifts; ++i) {
      const Gift& gift = history.Gifts()[i];
      Sum*& sum = sums[gift.organization];
      if (sum == nullptr) sum = &index[std::string(history.Organizations()[gift.organization])];
      ++sum->gifts;
      sum->total += gift.amount;
      sum->years[session.day.year] += gift.amount;
      sum->last = std::max(sum->last, session.day);
    }
  }
}

void PastGifts::Read() {
  if (coming_.valid()) dropped_.push_back(std::move(coming_));
  std::erase_if(dropped_, IsReady<Index>);
  index_.clear();
  const FilePath file = environment_.info.Resource("history.dat");
  const auto read = [&files = environment_.files, &states = states_, file] {
    Index index;
    try {
      AddTo(index, GivenHistory(files, file), states.Read());
    } catch (const RuntimeError&) {
      // A history that cannot be read tells nothing here.
    }
    return index;
  };
  try {
    if (!environment_.files.Exists(file)) return;
    // A short one is there at once.
    constexpr std::size_t isShort = std::size_t{1} << 20;
    if (environment_.files.Open(file)->State().size < isShort) {
      index_ = read();
    } else {
      coming_ = std::async(std::launch::async, read);
    }
  } catch (const RuntimeError&) {
  }
}

void PastGifts::Add(const std::string& records) {
  if (coming_.valid()) return Read();  // which may have them or not
  try {
    AddTo(index_, GivenHistory(records), {});
  } catch (const RuntimeError&) {
    // Sums beyond a currency are not shown.
  }
}

void PastGifts::Show() {
  if (coming_.valid() && IsReady(coming_)) index_ = coming_.get();
  const ListView& list = main_.ListView1;
  const bool isOrganization = list.selected != 0 && list.Text(list.selected).empty();
  main_.PastGifts.visible = isOrganization && !coming_.valid();
  main_.PastGiftsText.caption =
      main_.PastGifts.visible ? TextOf(list.SelectedText(column::kOrganization)) : "";
}

std::string PastGifts::TextOf(const std::string& organization) const {
  const auto found = index_.find(organization);
  if (found == index_.end()) return "Your gifts here: none yet";
  const Sum& sum = found->second;
  const auto year = sum.years.find(environment_.clock.Now().year);
  return "Your gifts here: " + std::to_string(sum.gifts) + ", " + Format(sum.total, kSumPattern) +
         " in all, " + Format(year == sum.years.end() ? Currency() : year->second, kSumPattern) +
         " this year, last on " + DayText(sum.last);
}

}  // namespace benevix
