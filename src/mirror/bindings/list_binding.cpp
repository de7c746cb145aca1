#include <QEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>
#include <QTableView>

#include "database/organization_list.h"
#include "mirror/bindings/bound.h"
#include "mirror/bindings/list_delegate.h"
#include "mirror/bindings/list_model.h"
#include "mirror/look/texts.h"

namespace benevix {
namespace {

class ListBinding : public QObject, public Binding {
 public:
  ListBinding(ListView& list, QTableView& view, BindingContext& context)
      : list_(list),
        view_(view),
        context_(context),
        model_(list, nullptr),
        delegate_(context.scheme),
        scrolls_(list.scrolls) {
    view.setModel(&model_);
    view.setItemDelegate(&delegate_);
    view.viewport()->installEventFilter(this);
    LayOutColumns();
    QObject::connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                     [this](const QModelIndex& current) {
                       // The mouse is followed to its release instead.
                       if (context_.applying || pressed_ || !current.isValid()) return;
                       // The view's own place, taken when the focus comes, is nobody's choice.
                       if (!view_.selectionModel()->isSelected(current)) return;
                       context_.input.SelectRow(list_, current.row() + 1, MouseButton::Left, true);
                     });
  }

  void Apply() override {
    if (view_.isEnabledTo(view_.parentWidget()) != list_.enabled) view_.setEnabled(list_.enabled);
    model_.Refresh();
    if (view_.currentIndex().row() + 1 != list_.selected) {
      if (list_.selected == 0) {
        view_.selectionModel()->clear();
      } else {
        view_.selectionModel()->setCurrentIndex(
            model_.index(list_.selected - 1, column::kOrganization),
            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
      }
    }
    if (scrolls_ != list_.scrolls) {
      scrolls_ = list_.scrolls;
      view_.scrollTo(model_.index(list_.top - 1, 0), QAbstractItemView::PositionAtTop);
    }
  }

  [[nodiscard]] QWidget* Widget() const override { return &view_; }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress) pressed_ = true;
    if (event->type() == QEvent::MouseButtonRelease && pressed_) {
      pressed_ = false;
      const auto& mouse = static_cast<const QMouseEvent&>(*event);
      const int row = view_.indexAt(mouse.position().toPoint()).row() + 1;
      const bool right = mouse.button() == Qt::RightButton;
      if (row > 0) {
        context_.input.SelectRow(list_, row, right ? MouseButton::Right : MouseButton::Left);
      } else {
        Apply();
      }
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  // The columns that only serve the program are out of sight unless asked for.
  void OfferColumns(const QPoint& place) {
    const QHeaderView& header = *view_.horizontalHeader();
    QMenu menu(&view_);
    for (int i = 0; i < ListView::kColumns; ++i) {
      const QString caption = ToQString(list_.columns[static_cast<std::size_t>(i)]);
      QAction* const shown =
          menu.addAction(caption.isEmpty() ? QStringLiteral("Options") : caption);
      shown->setCheckable(true);
      shown->setChecked(!header.isSectionHidden(i));
      shown->setEnabled(i != column::kOrganization);
      QObject::connect(shown, &QAction::toggled, this,
                       [this, i](bool on) { view_.setColumnHidden(i, !on); });
    }
    menu.exec(header.mapToGlobal(place));
  }

  void LayOutColumns() {
    QHeaderView& header = *view_.horizontalHeader();
    header.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&header, &QWidget::customContextMenuRequested, this,
                     [this](const QPoint& place) { OfferColumns(place); });
    auto* const columns = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_K), &view_);
    QObject::connect(columns, &QShortcut::activated, this,
                     [this] { OfferColumns(QPoint(0, view_.horizontalHeader()->height())); });
    for (const int served : {column::kId, column::kRecord, column::kFee, column::kCardFee}) {
      view_.setColumnHidden(served, true);
    }
    const int unit = view_.fontMetrics().averageCharWidth();
    const int widths[] = {12, 46, 16, 14, 16, 20};  // characters
    header.setMinimumSectionSize(8 * unit);
    for (int i = 0; i < 6; ++i) header.resizeSection(i, widths[i] * unit);
    for (int i = 6; i < ListView::kColumns; ++i) header.resizeSection(i, 14 * unit);
    header.setSectionResizeMode(column::kOrganization, QHeaderView::Stretch);
    view_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_.verticalHeader()->setDefaultSectionSize(view_.fontMetrics().height() + 10);
  }

  ListView& list_;
  QTableView& view_;
  BindingContext& context_;
  ListModel model_;
  ListDelegate delegate_;
  int scrolls_;
  bool pressed_ = false;
};

}  // namespace

std::unique_ptr<Binding> Bind(ListView& list, QWidget& widget, BindingContext& context) {
  auto* const view = qobject_cast<QTableView*>(&widget);
  if (view == nullptr) return nullptr;
  return std::make_unique<ListBinding>(list, *view, context);
}

}  // namespace benevix
