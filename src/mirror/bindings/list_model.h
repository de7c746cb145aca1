#pragma once

#include <QAbstractTableModel>

#include "controls/list_view.h"

namespace benevix {

// The rows of a ListView for a table view. It holds no text: each cell is read from the struct when
// it is painted.
class ListModel : public QAbstractTableModel {
 public:
  enum class Kind { Heading, Organization, Given };  // given: with a donation, or any other entry
  static constexpr int kKindRole = Qt::UserRole;

  ListModel(const ListView& list, QObject* parent) : QAbstractTableModel(parent), list_(list) {}

  // Updates the view where texts or rows have changed since the last time.
  void Refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  // The row of the list at an index, 0 for none, and the other way round.
  [[nodiscard]] int RowOf(const QModelIndex& index) const {
    return index.isValid() ? list_.RowAt(index.row() + 1) : 0;
  }
  [[nodiscard]] QModelIndex IndexOf(int row, int column) const {
    return index(list_.PlaceOf(row) - 1, column);
  }

  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  [[nodiscard]] Kind KindOf(int row) const;

  const ListView& list_;
  int loads_ = 0;
  std::shared_ptr<const ShownRows> shownRows_;
  int count_ = 0;
  int changes_ = 0;
};

}  // namespace benevix
