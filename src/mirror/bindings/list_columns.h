#pragma once

class QTableView;

namespace benevix {

struct ListView;

// The list's columns as they are at first, and the menu in which the user shows and hides them: by
// the right mouse button on the headings, or Ctrl+K in the list. The countries have no column:
// their headings run over the rows.
void LayOutColumns(QTableView& view, const ListView& list);

// Gives the names the room that the other columns leave, as long as the amounts stay near them; the
// rest goes to the last column.
void FitColumns(QTableView& view);

}  // namespace benevix
