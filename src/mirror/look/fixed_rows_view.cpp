#include "mirror/look/fixed_rows_view.h"

#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <limits>

namespace benevix {

void FixedRowsView::setModel(QAbstractItemModel* model) {
  QTableView::setModel(model);
  verticalHeader()->setModel(&noRows_);
}

void FixedRowsView::reset() {
  QTableView::reset();
  updateGeometries();
}

int FixedRowsView::RowHeight() const {
  return std::max(1, verticalHeader()->defaultSectionSize());
}

int FixedRowsView::RowsOnPage() const {
  return std::max(1, viewport()->height() / RowHeight());
}

int FixedRowsView::TopRow() const {
  return verticalScrollBar()->value();
}

int FixedRowsView::verticalOffset() const {
  const qint64 pixels = qint64{TopRow()} * RowHeight();
  return static_cast<int>(std::min<qint64>(pixels, std::numeric_limits<int>::max()));
}

QRect FixedRowsView::visualRect(const QModelIndex& index) const {
  if (!index.isValid() || isColumnHidden(index.column())) return {};
  return {columnViewportPosition(index.column()), (index.row() - TopRow()) * RowHeight(),
          columnWidth(index.column()), RowHeight()};
}

QModelIndex FixedRowsView::indexAt(const QPoint& place) const {
  const int row = TopRow() + place.y() / RowHeight();
  const int column = columnAt(place.x());
  if (place.y() < 0 || row >= Rows() || column < 0) return {};
  return model()->index(row, column);
}

void FixedRowsView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  if (!index.isValid()) return;
  QScrollBar& rows = *verticalScrollBar();
  const int row = index.row();
  const int page = RowsOnPage();
  if (hint == PositionAtTop || (hint == EnsureVisible && row < rows.value())) {
    rows.setValue(row);
  } else if (hint == PositionAtBottom || (hint == EnsureVisible && row >= rows.value() + page)) {
    rows.setValue(row - page + 1);
  } else if (hint == PositionAtCenter) {
    rows.setValue(row - page / 2);
  }
  if (isColumnHidden(index.column())) return;
  QScrollBar& pixels = *horizontalScrollBar();
  const QRect cell = visualRect(index);
  const int width = viewport()->width();
  if (cell.left() < 0 || cell.width() > width) {
    pixels.setValue(pixels.value() + cell.left());
  } else if (cell.right() >= width) {
    pixels.setValue(pixels.value() + cell.right() - width + 1);
  }
}

void FixedRowsView::updateGeometries() {
  QScrollBar& rows = *verticalScrollBar();
  const int value = rows.value();
  const int maximum = rows.maximum();
  {
    // The toolkit's own takes the bar for one without rows.
    const QSignalBlocker blocker(rows);
    QTableView::updateGeometries();
    rows.setRange(0, maximum);
    rows.setValue(value);
  }
  rows.setSingleStep(1);
  rows.setPageStep(RowsOnPage());
  rows.setRange(0, std::max(0, Rows() - RowsOnPage()));
  horizontalScrollBar()->setMaximum(
      std::max(0, horizontalHeader()->length() - viewport()->width()));
}

void FixedRowsView::scrollContentsBy(int dx, int dy) {
  if (dx != 0) QTableView::scrollContentsBy(dx, 0);
  if (std::abs(dy) >= RowsOnPage()) {
    viewport()->update();
  } else if (dy != 0) {
    viewport()->scroll(0, dy * RowHeight());
  }
}

int FixedRowsView::NextColumn(int column, int step) const {
  for (int next = column + step; next >= 0 && next < model()->columnCount(); next += step) {
    if (!isColumnHidden(next)) return next;
  }
  return column;
}

QModelIndex FixedRowsView::moveCursor(CursorAction action, Qt::KeyboardModifiers /*modifiers*/) {
  const int rows = Rows();
  if (rows == 0) return {};
  const QModelIndex current = currentIndex();
  if (!current.isValid()) return model()->index(0, NextColumn(-1, 1));
  int row = current.row();
  int column = current.column();
  switch (action) {
    case MoveUp:
      --row;
      break;
    case MoveDown:
      ++row;
      break;
    case MovePageUp:
      row -= RowsOnPage();
      break;
    case MovePageDown:
      row += RowsOnPage();
      break;
    case MoveHome:
      row = 0;
      break;
    case MoveEnd:
      row = rows - 1;
      break;
    case MoveLeft:
    case MovePrevious:
      column = NextColumn(column, -1);
      break;
    case MoveRight:
    case MoveNext:
      column = NextColumn(column, 1);
      break;
  }
  return model()->index(std::clamp(row, 0, rows - 1), column);
}

QRegion FixedRowsView::visualRegionForSelection(const QItemSelection& selection) const {
  QRegion region;
  for (const QItemSelectionRange& range : selection) {
    const int first = std::max(range.top() - TopRow(), 0);
    const int last = std::min(range.bottom() - TopRow(), RowsOnPage());
    if (first > last) continue;
    region += QRect(0, first * RowHeight(), viewport()->width(), (last - first + 1) * RowHeight());
  }
  return region;
}

void FixedRowsView::dataChanged(const QModelIndex& first, const QModelIndex& last,
                                const QList<int>& roles) {
  QTableView::dataChanged(first, last, roles);
  viewport()->update();
}

void FixedRowsView::paintEvent(QPaintEvent* event) {
  const QRect area = event->rect();
  const int first = TopRow() + area.top() / RowHeight();
  const int last = std::min(Rows() - 1, TopRow() + area.bottom() / RowHeight());
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.state &= ~QStyle::State_MouseOver;
  QPainter painter(viewport());
  for (int row = first; row <= last; ++row) {
    for (int column = 0; column < model()->columnCount(); ++column) {
      const QModelIndex index = model()->index(row, column);
      option.rect = visualRect(index);
      if (option.rect.intersects(area)) PaintCell(painter, option, index);
    }
  }
}

void FixedRowsView::PaintCell(QPainter& painter, QStyleOptionViewItem option,
                              const QModelIndex& index) const {
  if (selectionModel()->isSelected(index)) option.state |= QStyle::State_Selected;
  if (hasFocus() && index == currentIndex()) option.state |= QStyle::State_HasFocus;
  style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter, this);
  itemDelegateForIndex(index)->paint(&painter, option, index);
}

}  // namespace benevix
