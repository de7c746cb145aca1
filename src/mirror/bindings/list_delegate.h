#pragma once

#include <QStyledItemDelegate>

#include "mirror/look/theme.h"

namespace benevix {

// Draws the organizations: a country's heading runs over the whole row, and a row with a donation
// stands out by its ground and a bar at its edge.
class ListDelegate : public QStyledItemDelegate {
 public:
  // The scheme may change.
  explicit ListDelegate(const Scheme& scheme, QObject* parent = nullptr);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

  // A text that is cut off is told whole, in place of the list's own tip.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  void PaintHeading(QPainter& painter, const QStyleOptionViewItem& option,
                    const QModelIndex& index) const;

  const Scheme& scheme_;
};

}  // namespace benevix
