#include "mirror/bindings/column_room.h"

#include <QHeaderView>
#include <algorithm>

namespace benevix {

void ColumnRoom::Share(QHeaderView& header, int room) const {
  if (rest == names) return header.setSectionResizeMode(names, QHeaderView::Stretch);
  int others = restLeast;
  for (int i = 0; i < header.count(); ++i) {
    if (i == names || i == rest || header.isSectionHidden(i)) continue;
    if (header.sectionResizeMode(i) == QHeaderView::Stretch) {  // it had the rest
      header.setSectionResizeMode(i, QHeaderView::Interactive);
      header.resizeSection(i, restLeast);
    }
    others += header.sectionSize(i);
  }
  header.setSectionResizeMode(names, QHeaderView::Fixed);
  header.setSectionResizeMode(rest, QHeaderView::Stretch);
  header.resizeSection(names, std::clamp(room - others, least, most));
}

}  // namespace benevix
