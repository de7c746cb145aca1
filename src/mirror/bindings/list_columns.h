#pragma once

class QTableView;

namespace benevix {

struct ListView;

// The list's columns as they are at first, and the menu in which the user shows and hides them: by
// the right mouse button on the headings, or Ctrl+K in the list.
void LayOutColumns(QTableView& view, const ListView& list);

}  // namespace benevix
