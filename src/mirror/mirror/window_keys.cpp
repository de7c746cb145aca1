#include "mirror/mirror/window_keys.h"

#include <QKeyEvent>

namespace benevix {
namespace {

// Key codes as KeyUp gives them; letters and digits are those of their capitals.
int KeyCode(int key) {
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return keys::kEnter;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return keys::kTab;
    case Qt::Key_Escape:
      return keys::kEscape;
    case Qt::Key_Backspace:
      return keys::kBackspace;
    case Qt::Key_Down:
      return keys::kDown;
    default:
      return key < 128 ? key : 0;
  }
}

bool IsTab(const QKeyEvent& event) {
  return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

bool IsTabPress(const QKeyEvent& event) {
  return IsTab(event) && event.type() == QEvent::KeyPress &&
         (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
}

}  // namespace

bool WindowKeys::Filter(Control& control, const QWidget& widget, const QKeyEvent& event) {
  if (IsTabPress(event)) {
    input_.Tab(control, event.key() == Qt::Key_Tab);
    return true;
  }
  if (IsReleased(widget, event)) input_.Key(control, KeyCode(event.key()));
  return false;
}

bool WindowKeys::Filter(const QKeyEvent& event) {
  if (IsTabPress(event)) {
    // A page that has the focus has tab stops of its own.
    if (widget_.focusWidget() != nullptr) return false;
    input_.Tab(window_, event.key() == Qt::Key_Tab);
    return true;
  }
  if (IsReleased(widget_, event)) input_.Key(window_, KeyCode(event.key()));
  return false;
}

bool WindowKeys::IsReleased(const QWidget& widget, const QKeyEvent& event) {
  if (event.type() != QEvent::KeyRelease) {
    pressedIn_ = &widget;
    pressedKey_ = event.key();
    return false;
  }
  if (IsTab(event) || event.isAutoRepeat() || pressedIn_ != &widget || pressedKey_ != event.key()) {
    return false;
  }
  pressedKey_ = 0;
  return true;
}

}  // namespace benevix
