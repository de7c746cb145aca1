#pragma once

#include <QStandardItemModel>
#include <QTableView>

namespace benevix {

// A table whose rows are all of the height that its vertical header has for a new one. The
// toolkit's own keeps a place for each row: with 2,000,000 of them 16 MB, filled anew whenever
// other rows are shown, which takes longer than a frame. Here the header knows no rows, and what is
// asked of it is computed; rows are scrolled one by one, columns by pixels.
class FixedRowsView : public QTableView {
 public:
  using QTableView::QTableView;

  // At first without rows.
  void setModel(QAbstractItemModel* model) override;
  void reset() override;
  [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
  [[nodiscard]] QModelIndex indexAt(const QPoint& place) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 protected:
  [[nodiscard]] int verticalOffset() const override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& selection) const override;
  void dataChanged(const QModelIndex& first, const QModelIndex& last,
                   const QList<int>& roles) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int Rows() const { return model() == nullptr ? 0 : model()->rowCount(); }
  [[nodiscard]] int RowHeight() const;
  [[nodiscard]] int TopRow() const;
  // How many rows are seen whole.
  [[nodiscard]] int RowsOnPage() const;
  // The next column to the right (`step` 1) or left (-1) that is not hidden; the same at the end.
  [[nodiscard]] int NextColumn(int column, int step) const;
  void PaintCell(QPainter& painter, QStyleOptionViewItem option, const QModelIndex& index) const;

  QStandardItemModel noRows_;
};

}  // namespace benevix
