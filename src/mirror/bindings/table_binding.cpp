#include <QAbstractTableModel>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>
#include <algorithm>

#include "mirror/bindings/column_room.h"
#include "mirror/bindings/make_binding.h"
#include "mirror/bindings/widget_binding.h"
#include "mirror/look/texts.h"

namespace benevix {
namespace {

// It holds no text: each cell is read from the struct when it is painted.
class TableModel : public QAbstractTableModel {
 public:
  explicit TableModel(const Table& table) : table_(table) {}

  // True when there are other rows than at the last time.
  bool Refresh() {
    if (loads_ == table_.loads) return false;
    beginResetModel();
    loads_ = table_.loads;
    count_ = table_.Count();
    endResetModel();
    return true;
  }

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : count_;
  }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns.size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    const int row = index.row() + 1;
    switch (role) {
      case Qt::DisplayRole:
      case Qt::ToolTipRole:
        return Drawn(table_.rows->Text(row, index.column()));
      case Qt::TextAlignmentRole:
        return Alignment(index.column());
      case Qt::ForegroundRole:
        if (table_.rows->IsDetail(row)) {
          return QGuiApplication::palette().brush(QPalette::PlaceholderText);
        }
        return {};
      default:
        return {};
    }
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return Heading(section);
    if (role == Qt::AccessibleTextRole && section == table_.sorted) {
      return ToQString(ColumnOf(section).caption) + (table_.descending
                                                         ? QStringLiteral(", sorted descending")
                                                         : QStringLiteral(", sorted ascending"));
    }
    return role == Qt::TextAlignmentRole ? Alignment(section) : QVariant();
  }

 private:
  // With an arrow by which the rows are sorted.
  [[nodiscard]] QString Heading(int section) const {
    const QString caption = ToQString(ColumnOf(section).caption);
    if (section != table_.sorted) return caption;
    return caption + QLatin1Char(' ') + QChar(table_.descending ? 0x25BE : 0x25B4);
  }
  [[nodiscard]] const Table::Column& ColumnOf(int section) const {
    return table_.columns[static_cast<std::size_t>(section)];
  }
  [[nodiscard]] QVariant Alignment(int section) const {
    const auto side = ColumnOf(section).isNumber ? Qt::AlignRight : Qt::AlignLeft;
    return QVariant::fromValue(Qt::Alignment(side | Qt::AlignVCenter));
  }

  const Table& table_;
  int loads_ = 0;
  int count_ = 0;
};

class TableBinding : public QObject, public WidgetBinding<Table, QTableView> {
 public:
  TableBinding(Table& table, QTableView& view, BindingContext& context)
      : WidgetBinding(table, view, context), model_(table) {
    view.setModel(&model_);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setSelectionMode(QAbstractItemView::SingleSelection);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setShowGrid(false);
    view.setWordWrap(false);
    view.setTabKeyNavigation(false);
    if (!table.takesFocus) view.setFocusPolicy(Qt::NoFocus);
    view.installEventFilter(this);
    LayOut();
    connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
              if (context_.applying || !current.isValid()) return;
              if (!widget_.selectionModel()->isSelected(current)) return;
              if (pressed_) return;  // the click tells of it
              context_.input.SelectRow(control_, current.row() + 1, true);
            });
    connect(&view, &QTableView::clicked, this, [this](const QModelIndex& index) {
      context_.input.SelectRow(control_, index.row() + 1);
    });
    view.viewport()->installEventFilter(this);
    connect(view.horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int section) { context_.input.ClickColumn(control_, section); });
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == widget_.viewport()) {
      if (event->type() == QEvent::Resize) ShareRoom();
      if (event->type() == QEvent::MouseButtonDblClick) return true;  // a double click is one click
      if (event->type() == QEvent::MouseButtonPress) pressed_ = true;
      if (event->type() == QEvent::MouseButtonRelease) pressed_ = false;
      return false;
    }
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.matches(QKeySequence::Copy)) {
      Copy();
      return true;
    }
    // The view's own Home and End move within a row.
    const bool isPlain = (key.modifiers() & ~Qt::KeypadModifier) == 0;
    if (isPlain && (key.key() == Qt::Key_Home || key.key() == Qt::Key_End)) {
      const int row = key.key() == Qt::Key_Home ? 1 : control_.Count();
      context_.input.SelectRow(control_, row, true);
      return true;
    }
    const int column = key.key() - Qt::Key_1;
    const bool isColumn = column >= 0 && column < model_.columnCount();
    if (key.modifiers() == Qt::ControlModifier && isColumn) {
      context_.input.ClickColumn(control_, column);
      return true;
    }
    return false;
  }

 private:
  void LayOut() {
    QHeaderView& header = *widget_.horizontalHeader();
    header.setHighlightSections(false);
    header.setSectionsClickable(control_.canBeSorted);
    constexpr int inset = 9;  // pixels, before and behind a text
    const int digit = widget_.fontMetrics().horizontalAdvance(QLatin1Char('0'));
    QFont bold = widget_.font();
    bold.setBold(true);
    for (int i = 0; i < model_.columnCount(); ++i) {
      const Table::Column& column = control_.columns[static_cast<std::size_t>(i)];
      const QString caption = ToQString(column.caption) + QStringLiteral(" \u25be");
      const int least = QFontMetrics(bold).horizontalAdvance(caption) + 2 * inset;
      if (i == control_.widest) room_.least = least;
      header.resizeSection(i, std::max(column.width * digit + 2 * inset, least));
    }
    header.setMinimumSectionSize(8 * digit);
    room_.names = room_.rest = control_.widest;
    for (int i = control_.widest + 1; i < model_.columnCount(); ++i) {
      if (!control_.columns[static_cast<std::size_t>(i)].isNumber) room_.rest = i;
    }
    constexpr int longest = 56;  // digits
    room_.most = longest * digit;
    room_.restLeast = header.sectionSize(room_.rest);
    ShareRoom();
    connect(&header, &QHeaderView::sectionResized, this, [this](int section) {
      if (section != room_.names && section != room_.rest) ShareRoom();
    });
    widget_.verticalHeader()->hide();
    widget_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    widget_.verticalHeader()->setDefaultSectionSize(widget_.fontMetrics().height() + 8);
  }

  void ShareRoom() { room_.Share(*widget_.horizontalHeader(), widget_.viewport()->width()); }

  void ApplyKind() override {
    const bool isNew = model_.Refresh();
    if (!isNew && widget_.currentIndex().row() + 1 == control_.selected) return;
    if (control_.selected == 0) {
      widget_.selectionModel()->clear();
      return;
    }
    widget_.selectionModel()->setCurrentIndex(
        model_.index(control_.selected - 1, 0),
        QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    widget_.scrollTo(model_.index(control_.selected - 1, 0));
  }

  // The selected row, for a spreadsheet.
  void Copy() const {
    if (control_.selected == 0) return;
    QStringList cells;
    for (int i = 0; i < model_.columnCount(); ++i) {
      cells << ToQString(control_.rows->Text(control_.selected, i));
    }
    QGuiApplication::clipboard()->setText(cells.join(QLatin1Char('\t')));
  }

  TableModel model_;
  ColumnRoom room_;
  bool pressed_ = false;
};

}  // namespace

std::unique_ptr<Binding> MakeTableBinding(const NamedControl& control, QWidget& widget,
                                          BindingContext& context) {
  return MakeFirst<TableBinding>(control, widget, context);
}

}  // namespace benevix
