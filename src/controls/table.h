#pragma once

#include <memory>
#include <string>
#include <vector>

#include "controls/control.h"
#include "controls/row_source.h"

namespace benevix {

// The rows of a table. A detail belongs to the row above it.
class TableRows : public RowSource {
 public:
  [[nodiscard]] virtual bool IsDetail(int /*row*/) const { return false; }
};

// A table that is only read: its rows come from their source, so that many cost nothing.
struct Table : Control {
  struct Column {
    std::string caption;
    bool isNumber = false;  // stands at the right side
    int width = 12;         // digits, at first; its caption has room, too
  };

  Table() = default;
  Table(std::string tip, std::vector<Column> all)
      : Control(std::move(tip)), columns(std::move(all)) {}

  void SetRows(std::shared_ptr<const TableRows> source) {
    rows = std::move(source);
    ++loads;
  }
  [[nodiscard]] int Count() const { return rows ? rows->Count() : 0; }

  std::vector<Column> columns;
  int widest = 0;            // the column of names, with most of the room that is left
  bool takesFocus = true;    // otherwise its rows only lead elsewhere, and the keys pass it by
  bool canBeSorted = false;  // by a click on a column's heading
  int sorted = -1;           // the column by which the rows are sorted, -1 for none
  bool descending = false;
  std::shared_ptr<const TableRows> rows;
  int loads = 0;     // how often the rows were replaced
  int selected = 0;  // row, 0 for none
};

}  // namespace benevix
