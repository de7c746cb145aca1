#include "mirror/bindings/list_delegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QTableView>
#include <QToolTip>

#include "database/organization_list.h"
#include "mirror/bindings/list_model.h"
#include "mirror/look/texts.h"

namespace benevix {
namespace {

constexpr int kInset = 8;    // pixels before and behind a text
constexpr int kIndent = 16;  // pixels, of a name below its country
constexpr int kEdge = 4;     // pixels, the bar at the edge of a row with a donation

ListModel::Kind KindOf(const QModelIndex& index) {
  return index.data(ListModel::kKindRole).value<ListModel::Kind>();
}

// Where the text of a cell that is no heading stands.
QRect TextPlace(const QModelIndex& index, const QRect& cell) {
  const int indent = index.column() == column::kOrganization ? kIndent : 0;
  return cell.adjusted(kInset + indent, 0, -kInset, 0);
}

}  // namespace

ListDelegate::ListDelegate(const Scheme& scheme, QObject* parent)
    : QStyledItemDelegate(parent), scheme_(scheme) {}

void ListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  const ListModel::Kind kind = KindOf(index);
  if (kind == ListModel::Kind::Heading) return PaintHeading(*painter, option, index);

  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  const bool given = kind == ListModel::Kind::Given;
  const ListColors colors = ListColorsOf(scheme_);
  painter->fillRect(option.rect, selected ? option.palette.color(QPalette::Highlight)
                                 : given  ? colors.given
                                          : option.palette.color(QPalette::Base));
  const auto* const view = qobject_cast<const QTableView*>(option.widget);
  const int first = view != nullptr ? view->columnAt(0) : 0;
  if (given && index.column() == first) {
    painter->fillRect(QRect(option.rect.topLeft(), QSize(kEdge, option.rect.height())),
                      colors.edge);
  }
  painter->setFont(cell.font);
  painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
  const QRect inside = TextPlace(index, option.rect);
  const QString text = cell.fontMetrics.elidedText(cell.text, Qt::ElideRight, inside.width());
  if (!selected && (index.column() == column::kOrganization || index.column() == column::kType)) {
    PaintMarks(*painter, inside, text);
  }
  painter->drawText(inside, static_cast<int>(cell.displayAlignment) | Qt::TextSingleLine, text);
}

bool ListDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
  const bool heading = KindOf(index) == ListModel::Kind::Heading;
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, heading ? index.siblingAtColumn(column::kCountry) : index);
  const int width =
      heading ? view->viewport()->width() - 2 * kInset : TextPlace(index, option.rect).width();
  if (event->type() != QEvent::ToolTip || cell.fontMetrics.horizontalAdvance(cell.text) <= width) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  QToolTip::showText(event->globalPos(), cell.text, view);
  return true;
}

void ListDelegate::SetMarkedWords(const std::vector<std::string>& words) {
  marked_.clear();
  for (const std::string& word : words) marked_ << ToQString(word);
}

void ListDelegate::PaintMarks(QPainter& painter, const QRect& rect, const QString& text) const {
  const QFontMetrics metrics = painter.fontMetrics();
  for (const QString& word : marked_) {
    for (qsizetype at = 0; (at = text.indexOf(word, at, Qt::CaseInsensitive)) >= 0;
         at += word.size()) {
      const int left = metrics.horizontalAdvance(text.first(at));
      const int right = metrics.horizontalAdvance(text.first(at + word.size()));
      painter.fillRect(QRect(rect.left() + left, rect.center().y() - metrics.height() / 2,
                             right - left, metrics.height()),
                       ListColorsOf(scheme_).marked);
    }
  }
}

// The text runs over the whole row: every cell draws the part of it that falls into the cell.
void ListDelegate::PaintHeading(QPainter& painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
  const auto* const view = qobject_cast<const QTableView*>(option.widget);
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  const ListColors colors = ListColorsOf(scheme_);
  painter.save();
  painter.setClipRect(option.rect);
  painter.fillRect(option.rect,
                   selected ? option.palette.color(QPalette::Highlight) : colors.heading);
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  painter.setFont(cell.font);
  painter.setPen(selected ? option.palette.color(QPalette::HighlightedText) : colors.headingText);
  const int start = view != nullptr ? view->columnViewportPosition(column::kOrganization) : 0;
  const QRect row(start + kInset, option.rect.top(), option.rect.right() - start,
                  option.rect.height());
  const QString country = index.siblingAtColumn(column::kCountry).data().toString();
  if (!selected) PaintMarks(painter, row, country);
  painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, country);
  painter.restore();
}

}  // namespace benevix
