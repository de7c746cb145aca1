#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "base/large_memory.h"
#include "controls/control.h"
#include "controls/row_source.h"

namespace benevix {

// Rows of a list, in its order.
using ShownRows = std::vector<int, LargeAllocator<int>>;

// A list with columns: the rows of its source, and over them the few cells that were written since.
// So an event costs the same with three hundred rows and with two million.
struct ListView : Control {
  static constexpr int kColumns = 10;
  using Cells = std::array<std::string, kColumns>;

  std::array<std::string, kColumns> columns;  // captions
  // As they were loaded; column 0 is the item text, column n sub-item n.
  std::shared_ptr<const RowSource> rows;
  std::map<int, Cells> cells;  // by row; an empty text shows the source's
  int selected = 0;            // row, 0 for none
  int top = 0;                 // the row last scrolled into view, 0 for none
  int scrolls = 0;             // how often a row was to be scrolled into view
  int loads = 0;               // how often the rows were replaced
  int changes = 0;             // how often a text was written
  std::set<int> writtenRows;   // the rows written since this was last emptied
  // A filter: the rows that are shown, null for all of them, the words that are marked in them, and
  // what stands in the place of the rows when none is shown. The rows keep their numbers.
  std::shared_ptr<const ShownRows> shownRows;
  std::vector<std::string> markedWords;
  std::string emptyText;
  std::function<std::string(int row)> noteOf;  // what is told of a row where the mouse rests

  [[nodiscard]] int Count() const { return rows ? rows->Count() : 0; }

  [[nodiscard]] int ShownCount() const {
    return shownRows ? static_cast<int>(shownRows->size()) : Count();
  }
  // The row at a place among those that are shown; places count from 1, too.
  [[nodiscard]] int RowAt(int place) const {
    return shownRows ? (*shownRows)[static_cast<std::size_t>(place - 1)] : place;
  }
  // The place of a row; 0 for a row that is not shown.
  [[nodiscard]] int PlaceOf(int row) const {
    if (!shownRows) return row;
    const auto found = std::lower_bound(shownRows->begin(), shownRows->end(), row);
    if (found == shownRows->end() || *found != row) return 0;
    return static_cast<int>(found - shownRows->begin()) + 1;
  }

  [[nodiscard]] std::string SubItem(int row, int column) const {
    const auto written = cells.find(row);
    if (written != cells.end()) {
      const std::string& text = written->second[static_cast<std::size_t>(column)];
      if (!text.empty()) return text;
    }
    return rows ? rows->Text(row, column) : std::string();
  }

  [[nodiscard]] std::string Text(int row) const { return SubItem(row, 0); }

  // Of the selected row; empty without one.
  [[nodiscard]] std::string SelectedText(int column) const { return SubItem(selected, column); }

  void SetSubItem(int row, int column, std::string text) {
    cells[row][static_cast<std::size_t>(column)] = std::move(text);
    MarkWritten(row);
  }

  void SetCells(int row, Cells texts) {
    cells[row] = std::move(texts);
    MarkWritten(row);
  }

  // Leaves only what the source says of the row.
  void ClearRow(int row) {
    cells.erase(row);
    MarkWritten(row);
  }

  void SetRows(std::shared_ptr<const RowSource> source) {
    rows = std::move(source);
    cells.clear();
    selected = 0;
    top = 0;
    writtenRows.clear();
    shownRows.reset();
    ++loads;
  }

  void EnsureVisible(int row) {
    top = row;
    ++scrolls;
  }

 private:
  void MarkWritten(int row) {
    writtenRows.insert(row);
    ++changes;
  }
};

}  // namespace benevix
