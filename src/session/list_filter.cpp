#include "session/list_filter.h"

#include "database/row_filter.h"

namespace benevix {

void ListFilter::Filter_KeyUp(const EventArgs& args) {
  if (args.key == keys::kEnter || args.key == keys::kDown) GoToFound();
  if (args.key != keys::kEscape) return;
  main_.Filter.Write("");
  desk_.SetFocus(main_.ListView1);
}

void ListFilter::GoToFound() {
  const ListView& list = main_.ListView1;
  int place = list.PlaceOf(list.selected);
  if (place == 0) place = 1;
  while (place <= list.ShownCount() && !list.Text(list.RowAt(place)).empty()) ++place;
  if (place > list.ShownCount()) return;
  const int row = list.RowAt(place);
  if (row != list.selected) select_(row);
  desk_.SetFocus(main_.ListView1);
}

void ListFilter::ShowAll_Click() {
  Empty();
  desk_.SetFocus(main_.ListView1);
}

void ListFilter::Empty() {
  main_.Filter.Write("");
  main_.OnlyGiven.value = 0;
}

void ListFilter::AfterEvent() {
  ListView& list = main_.ListView1;
  ShowRows();
  const auto isHidden = [&](int row) { return row != 0 && list.PlaceOf(row) == 0; };
  if ((list.selected != selected_ && isHidden(list.selected)) ||
      (list.scrolls != scrolls_ && isHidden(list.top))) {
    Empty();
    ShowRows();
  }
  selected_ = list.selected;
  scrolls_ = list.scrolls;
}

void ListFilter::ShowRows() {
  ListView& list = main_.ListView1;
  const int onlyGiven = main_.OnlyGiven.value;
  const Basis basis{main_.Filter.text, onlyGiven, list.loads, onlyGiven == 1 ? list.changes : 0};
  if (basis == basis_) return;
  list.markedWords = WordsOf(basis.text);
  const auto before = list.shownRows;
  list.shownRows.reset();
  if (database_.List() != nullptr && (!list.markedWords.empty() || basis.onlyGiven == 1)) {
    ShownRows rows;
    if (basis.onlyGiven == 1) rows = GivenRows();
    if (!list.markedWords.empty()) {
      // With more letters, only rows that are shown already can stay. Where they are many, it is
      // faster to look at all rows in one go.
      constexpr int many = 32;
      const bool narrows = before && basis.loads == basis_.loads && basis_.onlyGiven == 0 &&
                           basis.text.starts_with(basis_.text) &&
                           static_cast<int>(before->size()) < list.Count() / many;
      const ShownRows* const within = basis.onlyGiven == 1 ? &rows
                                      : narrows            ? before.get()
                                                           : nullptr;
      rows = RowsWith(*database_.List(), list.markedWords, within);
    }
    list.shownRows = std::make_shared<const ShownRows>(std::move(rows));
  }
  main_.ShowAll.visible = list.shownRows != nullptr;
  basis_ = basis;
  list.emptyText.clear();
  if (list.Count() == 0) list.emptyText = "The list is empty\nUpdate List (F5) fetches another one";
  if (list.ShownCount() > 0 || !list.shownRows) return;
  const std::string words = " has \"" + basis.text + "\"";
  list.emptyText = list.markedWords.empty() ? "Nothing has been given in this session"
                   : basis.onlyGiven == 1   ? "No organization that you give to" + words
                                            : "No organization" + words;
  list.emptyText += "\nShow All brings the whole list back";
}

ShownRows ListFilter::GivenRows() const {
  const std::vector<int>& headings = database_.List()->Headings();
  ShownRows rows;
  for (const auto& [row, cells] : main_.ListView1.cells) {
    if (cells[column::kRecord].empty()) continue;
    const auto next = std::upper_bound(headings.begin(), headings.end(), row);
    const bool isFirst = next != headings.begin() && (rows.empty() || rows.back() < *(next - 1));
    if (isFirst) rows.push_back(*(next - 1));
    rows.push_back(row);
  }
  return rows;
}

}  // namespace benevix
