#pragma once

#include <QPointer>
#include <QWidget>

#include "controls/input.h"

class QKeyEvent;

namespace benevix {

// Reports the keys of a window's widgets to the logic: Tab when it is pressed, before the focus
// moves; any other key when it is released, if the same widget has seen its press and the program
// has not waited since.
class WindowKeys {
 public:
  WindowKeys(Input& input, Window& window, QWidget& widget)
      : input_(input), window_(window), widget_(widget) {}

  // A key pressed or released in a control's widget. True when it has been answered and goes no
  // further.
  bool Filter(Control& control, const QWidget& widget, const QKeyEvent& event);

  // The same for a key in the window itself, when no control has the focus.
  bool Filter(const QKeyEvent& event);

  // A press that a wait follows is no longer answered by its release.
  void ForgetPress() { pressedKey_ = 0; }

 private:
  // Whether the key has now been pressed and released in the widget.
  bool IsReleased(const QWidget& widget, const QKeyEvent& event);

  Input& input_;
  Window& window_;
  QWidget& widget_;
  QPointer<const QWidget> pressedIn_;
  int pressedKey_ = 0;  // Qt::Key, 0 for none
};

}  // namespace benevix
