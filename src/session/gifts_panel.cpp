#include "session/gifts_panel.h"

#include <algorithm>

#include "base/format.h"
#include "database/organization_list.h"

namespace benevix {
namespace {

// The texts are those of the list when they are drawn.
class GiftLines : public TableRows {
 public:
  GiftLines(const ListView& list, std::shared_ptr<const std::vector<int>> given)
      : list_(list), given_(std::move(given)) {}

  [[nodiscard]] int Count() const override { return static_cast<int>(given_->size()); }
  [[nodiscard]] std::string Text(int line, int column) const override {
    const int row = (*given_)[static_cast<std::size_t>(line - 1)];
    if (column == 0) return list_.SubItem(row, column::kOrganization);
    return FormatText(list_.SubItem(row, column::kAmount), kSumPattern);
  }

 private:
  const ListView& list_;
  std::shared_ptr<const std::vector<int>> given_;
};

}  // namespace

void GiftsPanel::Show() {
  ShowRows();
  ShowSums();
}

void GiftsPanel::ShowRows() {
  const ListView& list = main_.ListView1;
  Table& table = main_.GiftRows;
  if (loads_ != list.loads || changes_ != list.changes) {
    loads_ = list.loads;
    changes_ = list.changes;
    std::vector<int> given;
    for (const auto& [row, cells] : list.cells) {
      if (!cells[column::kRecord].empty()) given.push_back(row);
    }
    given_ = std::make_shared<const std::vector<int>>(std::move(given));
    table.SetRows(std::make_shared<const GiftLines>(list, given_));
  }
  const auto at = std::lower_bound(given_->begin(), given_->end(), list.selected);
  const bool isGiven = at != given_->end() && *at == list.selected;
  table.selected = isGiven ? static_cast<int>(at - given_->begin()) + 1 : 0;
  main_.GiftsNote.visible = given_->empty();
}

void GiftsPanel::ShowSums() {
  std::size_t used = 0;
  const auto show = [&](std::string name, Currency amount) {
    main_.GiftSumName[used].caption = std::move(name);
    main_.GiftSum[used].caption = Format(amount, kSumPattern);
    ++used;
  };
  using Use = MoneyBar::Part::Use;
  const std::size_t gifts = given_->size();
  for (const MoneyBar::Part& part : main_.BudgetUse.parts) {
    if (gifts == 0 || part.use == Use::Left || part.amount == Currency()) continue;
    const bool isSum = part.use == Use::Given;
    show(isSum ? std::to_string(gifts) + (gifts == 1 ? " gift" : " gifts") : part.caption,
         part.amount);
  }
  for (std::size_t i = 0; i < std::size(main_.GiftSum); ++i) {
    main_.GiftSumName[i].visible = main_.GiftSum[i].visible = i < used;
  }
}

void GiftsPanel::GiftRows_ItemClick() {
  listView_.Select((*given_)[static_cast<std::size_t>(main_.GiftRows.selected - 1)], false);
}

}  // namespace benevix
