#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTableView>

#include "base/text.h"
#include "database/organization_list.h"
#include "mirror/bindings/list_columns.h"
#include "mirror/bindings/list_delegate.h"
#include "mirror/bindings/list_model.h"
#include "mirror/bindings/make_binding.h"
#include "mirror/bindings/widget_binding.h"

namespace benevix {
namespace {

class ListBinding : public QObject, public WidgetBinding<ListView, QTableView> {
 public:
  ListBinding(ListView& list, QTableView& view, BindingContext& context)
      : WidgetBinding(list, view, context),
        model_(list, nullptr),
        delegate_(context.scheme),
        scrolls_(list.scrolls) {
    view.setModel(&model_);
    view.setItemDelegate(&delegate_);
    view.installEventFilter(this);
    view.viewport()->installEventFilter(this);
    LayOutColumns(view, list);
    QObject::connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                     [this](const QModelIndex& current) {
                       // The mouse chooses a row at its release.
                       if (context_.applying || pressed_ || !current.isValid()) return;
                       // When it gets the focus the view makes a row current without a choice.
                       if (!widget_.selectionModel()->isSelected(current)) return;
                       SelectRowByKey(current.row() + 1, MouseButton::Left);
                     });
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    return watched == &widget_ ? FilterKeys(*event) : FilterMouse(*event);
  }

 private:
  void ApplyKind() override {
    model_.Refresh();
    if (widget_.currentIndex().row() + 1 != control_.selected) {
      if (control_.selected == 0) {
        widget_.selectionModel()->clear();
      } else {
        widget_.selectionModel()->setCurrentIndex(
            model_.index(control_.selected - 1, column::kOrganization),
            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
      }
    }
    if (scrolls_ != control_.scrolls) {
      scrolls_ = control_.scrolls;
      widget_.scrollTo(model_.index(control_.top - 1, 0), QAbstractItemView::PositionAtTop);
    }
  }

  void SelectRowByKey(int row, MouseButton button) {
    context_.input.SelectRow(control_, row, button, true);
  }

  bool FilterMouse(const QEvent& event) {
    // Its first press has chosen the row, or was for something that stood before the list.
    if (event.type() == QEvent::MouseButtonDblClick) return true;
    if (event.type() == QEvent::MouseButtonPress) pressed_ = true;
    if (event.type() != QEvent::MouseButtonRelease || !pressed_) return false;
    pressed_ = false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    const int row = widget_.indexAt(mouse.position().toPoint()).row() + 1;
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
      SelectRowByKey(key.key() == Qt::Key_Home ? 1 : control_.Count(), MouseButton::Left);
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
  int scrolls_;
  bool pressed_ = false;
};

}  // namespace

std::unique_ptr<Binding> MakeListBinding(const NamedControl& control, QWidget& widget,
                                         BindingContext& context) {
  return MakeFirst<ListBinding>(control, widget, context);
}

}  // namespace benevix
