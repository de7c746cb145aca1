#include "session/distribution.h"

#include "base/runtime_error.h"
#include "database/organization_list.h"

namespace benevix {

// The largest amount that with its fees fits into an equal part of the Balance. What is charged
// once for the session leaves first, so that the first part is not the smallest.
Currency Distribution::Share(std::size_t rowsLeft) const {
  try {
    const Currency shared = values_.Balance - donation_.SessionFeeDue();
    return donation_.LargestWithin(
        Currency::FromUnits(shared.Units() / static_cast<std::int64_t>(rowsLeft)));
  } catch (const RuntimeError&) {
    return {};  // the fees overflow, so nothing fits
  }
}

void Distribution::mnuDistribFavs_Click() {
  ListView& list = main_.ListView1;
  std::vector<int> rows = favorites_.Rows();
  if (rows.empty()) {
    messages_.Show("None of the organizations in the list is a favorite");
    return;
  }
  std::erase_if(rows, [&](int row) { return !list.SubItem(row, column::kRecord).empty(); });
  if (!donation_.RequireDonor()) return;
  if (rows.empty() || Share(rows.size()) == Currency()) {
    messages_.Show("The Balance is too small to distribute");
    return;
  }
  const int selected = list.selected;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Currency share = Share(rows.size() - i);
    if (share == Currency()) continue;
    list.selected = rows[i];
    donation_.GiveUntyped(share, main_.Check1.value != 0);
  }
  list.selected = selected;
}

}  // namespace benevix
