#pragma once

#include <QStringList>
#include <QStyledItemDelegate>
#include <string>
#include <vector>

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

  // Words that are marked where they stand in a name, a type or a country.
  void SetMarkedWords(const std::vector<std::string>& words);

  // A text that is cut off is told whole, in place of the list's own tip.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  void PaintHeading(QPainter& painter, const QStyleOptionViewItem& option,
                    const QModelIndex& index) const;

  // Puts a ground below the marked words of a text that is drawn from `rect`'s left side.
  void PaintMarks(QPainter& painter, const QRect& rect, const QString& text) const;

  const Scheme& scheme_;
  QStringList marked_;
};

}  // namespace benevix
