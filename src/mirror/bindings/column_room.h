#pragma once

class QHeaderView;

namespace benevix {

// How the room of a table is shared: the names get what the other columns leave, as long as what
// belongs to them stays near; the rest goes to a column behind them. In pixels.
struct ColumnRoom {
  int names = 0;  // a column
  int least = 0, most = 0;
  int rest = 0;  // a column, which may be that of the names
  int restLeast = 0;

  // After a change of the room, or of the width of another column.
  void Share(QHeaderView& header, int room) const;
};

}  // namespace benevix
