#include "mirror/bindings/list_model.h"

#include <QFont>

#include "base/format.h"
#include "database/organization_list.h"
#include "mirror/look/texts.h"

namespace benevix {
namespace {

QVariant AlignmentOf(int column) {
  const bool number = column == column::kAmount || column >= column::kFee;
  return QVariant::fromValue(
      Qt::Alignment((number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
}

// A row is heard by its first cell.
QString SpokenRow(const ListView& list, int row) {
  QStringList texts;
  for (const int column : {column::kCountry, column::kOrganization, column::kType}) {
    const std::string text = list.SubItem(row, column);
    if (!text.empty()) texts += Drawn(text);
  }
  const std::string amount = list.SubItem(row, column::kAmount);
  if (!amount.empty()) texts += ToQString(FormatText(amount, kSumPattern));
  return texts.join(QStringLiteral(", "));
}

}  // namespace

void ListModel::Refresh() {
  if (list_.loads != loads_ || list_.shownRows != shownRows_) {
    beginResetModel();
    loads_ = list_.loads;
    shownRows_ = list_.shownRows;
    count_ = list_.ShownCount();
    changes_ = list_.changes;
    endResetModel();
  } else if (list_.changes != changes_ && count_ > 0) {
    changes_ = list_.changes;
    Q_EMIT dataChanged(index(0, 0), index(count_ - 1, ListView::kColumns - 1));
  }
}

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ListView::kColumns;
}

ListModel::Kind ListModel::KindOf(int row) const {
  if (list_.cells.count(row) != 0) return Kind::Given;
  return list_.Text(row).empty() ? Kind::Organization : Kind::Heading;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  const int row = RowOf(index);
  switch (role) {
    case Qt::DisplayRole:
      return Drawn(list_.SubItem(row, index.column()));
    case Qt::AccessibleTextRole:
      return index.column() == column::kOrganization ? SpokenRow(list_, row) : QVariant();
    case Qt::ToolTipRole:
      return list_.noteOf ? Drawn(list_.noteOf(row)) : QVariant();
    case Qt::TextAlignmentRole:
      return AlignmentOf(index.column());
    case kKindRole:
      return QVariant::fromValue(KindOf(row));
    case Qt::FontRole: {
      const Kind kind = KindOf(row);
      const bool named =
          index.column() == column::kOrganization || index.column() == column::kAmount;
      if (kind == Kind::Organization || (kind == Kind::Given && !named)) return {};
      QFont font;
      font.setBold(true);
      return font;
    }
    default:
      return {};
  }
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) {
    return ToQString(list_.columns[static_cast<std::size_t>(section)]);
  }
  return role == Qt::TextAlignmentRole ? AlignmentOf(section) : QVariant();
}

}  // namespace benevix
