#include "session/list_typing.h"

#include <algorithm>
#include <cstdlib>

#include "base/text.h"

namespace benevix {
namespace {

// A word typed across midnight is split, which does no harm.
bool WithinASecond(const DateTime& a, const DateTime& b) {
  const auto seconds = [](const DateTime& t) { return (t.hour * 60 + t.minute) * 60 + t.second; };
  return a.day == b.day && std::abs(seconds(a) - seconds(b)) <= 1;
}

}  // namespace

void ListTyping::ListView1_KeyPress(const EventArgs& args) {
  const OrganizationList* const list = database_.List();
  if (list == nullptr) return;
  const DateTime now = clock_.Now();
  if (!WithinASecond(now, lastKeyTime_)) typed_.clear();
  lastKeyTime_ = now;
  typed_ += static_cast<char>(args.key);

  const bool sameLetter =
      std::all_of(typed_.begin(), typed_.end(), [&](char c) { return SameLetter(c, typed_[0]); });
  // A longer word may still match the selected row.
  const int from = std::max(main_.ListView1.selected, 0) + (sameLetter ? 1 : 0);
  const int row = FindShown(*list, sameLetter ? typed_.substr(0, 1) : typed_, std::max(from, 1));
  if (row != 0) listView_.SelectByKeyboard(row);
}

int ListTyping::FindShown(const OrganizationList& list, const std::string& word, int from) const {
  const auto& shown = main_.ListView1.shownRows;
  if (!shown) return list.FindName(word, from);
  const auto begins = [&](int row) {
    return BeginsWith(list.View(row, column::kOrganization), word);
  };
  const auto first = std::lower_bound(shown->begin(), shown->end(), from);
  auto found = std::find_if(first, shown->end(), begins);
  if (found == shown->end()) found = std::find_if(shown->begin(), first, begins);
  return found == shown->end() || !begins(*found) ? 0 : *found;
}

}  // namespace benevix
