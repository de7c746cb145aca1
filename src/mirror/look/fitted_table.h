#pragma once

#include <QTableView>

namespace benevix {

// A table as high as its rows; where there is less room, they scroll.
class FittedTable : public QTableView {
 public:
  explicit FittedTable(QWidget* parent) : QTableView(parent) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Maximum);
    setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  }

  [[nodiscard]] QSize minimumSizeHint() const override { return {}; }
};

}  // namespace benevix
