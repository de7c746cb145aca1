#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QTableView>

#include "base/text.h"
#include "database/organization_list.h"
#include "mirror/bindings/list_columns.h"
#include "mirror/bindings/list_delegate.h"
#include "mirror/bindings/list_model.h"
#include "mirror/bindings/make_binding.h"
#include "mirror/bindings/widget_binding.h"
#include "mirror/look/texts.h"

namespace benevix {
namespace {

class ListBinding : public QObject, public WidgetBinding<ListView, QTableView> {
 public:
  ListBinding(ListView& list, QTableView& view, BindingContext& context)
      : WidgetBinding(list, view, context),
        model_(list, nullptr),
        delegate_(context.scheme),
        emptyText_(view.viewport()),
        scrolls_(list.scrolls) {
    view.setModel(&model_);
    view.setItemDelegate(&delegate_);
    view.installEventFilter(this);
    view.viewport()->installEventFilter(this);
    LayOutColumns(view, list);
    emptyText_.setAlignment(Qt::AlignCenter);
    emptyText_.setTextFormat(Qt::PlainText);
    emptyText_.setWordWrap(true);
    emptyText_.hide();
    QObject::connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                     [this](const QModelIndex& current) {
                       // The mouse chooses a row at its release.
                       if (context_.applying || pressed_ || !current.isValid()) return;
                       // When it gets the focus the view makes a row current without a choice.
                       if (!widget_.selectionModel()->isSelected(current)) return;
                       SelectRowByKey(model_.RowOf(current), MouseButton::Left);
                     });
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    return watched == &widget_ ? FilterKeys(*event) : FilterMouse(*event);
  }

 private:
  void ApplyKind() override {
    model_.Refresh();
    // A row that is not shown stays selected.
    const QModelIndex selected = model_.IndexOf(control_.selected, column::kOrganization);
    if (widget_.currentIndex().row() != selected.row()) {
      if (!selected.isValid()) {
        widget_.selectionModel()->clear();
      } else {
        widget_.selectionModel()->setCurrentIndex(
            selected, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
      }
    }
    if (scrolls_ != control_.scrolls) {
      scrolls_ = control_.scrolls;
      widget_.scrollTo(model_.IndexOf(control_.top, column::kOrganization),
                       QAbstractItemView::PositionAtTop);
    }
    if (filtered_ != control_.shownRows) {
      filtered_ = control_.shownRows;
      if (selected.isValid()) widget_.scrollTo(selected);
    }
    delegate_.SetMarkedWords(control_.markedWords);
    emptyText_.setText(ToQString(control_.emptyText));
    emptyText_.setVisible(!control_.emptyText.empty());
    emptyText_.setGeometry(widget_.viewport()->rect());
  }

  void SelectRowByKey(int row, MouseButton button) {
    context_.input.SelectRow(control_, row, button, true);
  }

  bool FilterMouse(const QEvent& event) {
    if (event.type() == QEvent::Resize) {
      emptyText_.resize(widget_.viewport()->size());
      FitColumns(widget_);
    }
    // Its first press has chosen the row, or was for something that stood before the list.
    if (event.type() == QEvent::MouseButtonDblClick) return true;
    if (event.type() == QEvent::MouseButtonPress) pressed_ = true;
    if (event.type() != QEvent::MouseButtonRelease || !pressed_) return false;
    pressed_ = false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    const int row = model_.RowOf(widget_.indexAt(mouse.position().toPoint()));
    const bool right = mouse.button() == Qt::RightButton;
    if (row > 0) {
      context_.input.SelectRow(control_, row, right ? MouseButton::Right : MouseButton::Left);
    } else {
      Apply();
    }
    return false;
  }

  bool FilterKeys(const QEvent& event) {
    if (event.type() == QEvent::ContextMenu) {
      const auto& menu = static_cast<const QContextMenuEvent&>(event);
      if (menu.reason() != QContextMenuEvent::Keyboard) return false;
      OpenMenu();
      return true;
    }
    return event.type() == QEvent::KeyPress && FilterKey(static_cast<const QKeyEvent&>(event));
  }

  bool FilterKey(const QKeyEvent& key) {
    if (key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier) {
      OpenMenu();
      return true;
    }
    if ((key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != 0) return false;
    // The view's own Home and End move within a row.
    if (key.key() == Qt::Key_Home || key.key() == Qt::Key_End) {
      const int last = model_.rowCount() - 1;
      SelectRowByKey(model_.RowOf(model_.index(key.key() == Qt::Key_Home ? 0 : last, 0)),
                     MouseButton::Left);
      return true;
    }
    // At a letter the view would look through all its rows; the program has a search of its own.
    const int byte = key.text().size() == 1 ? CodePageByte(key.text()[0].unicode()) : 0;
    if (byte < ' ' || key.key() == Qt::Key_Delete) return false;
    context_.input.Type(control_, static_cast<char>(byte));
    return true;
  }

  // As the right mouse button on the selected row does.
  void OpenMenu() {
    const QRect row = widget_.visualRect(widget_.currentIndex());
    context_.popUpPlace = widget_.viewport()->mapToGlobal(row.bottomLeft());
    SelectRowByKey(control_.selected, MouseButton::Right);
    context_.popUpPlace = {};
  }

  ListModel model_;
  ListDelegate delegate_;
  QLabel emptyText_;  // over the viewport
  std::shared_ptr<const ShownRows> filtered_;
  int scrolls_;
  bool pressed_ = false;
};

}  // namespace

std::unique_ptr<Binding> MakeListBinding(const NamedControl& control, QWidget& widget,
                                         BindingContext& context) {
  return MakeFirst<ListBinding>(control, widget, context);
}

}  // namespace benevix
