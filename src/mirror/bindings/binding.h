#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

#include "controls/input.h"
#include "mirror/look/theme.h"

namespace benevix {

// What the bindings of all windows share.
struct BindingContext {
  Input& input;
  Scheme scheme = Scheme::Light;
  bool runTimers = true;
  bool applying = false;   // the program writes into widgets; what they signal is not the user's
  QPoint popUpPlace = {};  // where the next pop-up menu opens; null: at the mouse
};

// Binds one control to its widget: hands the user's events on, and updates the widget from
// the struct.
class Binding {
 public:
  virtual ~Binding() = default;
  virtual void Apply() = 0;
  // Null for a timer, which has no widget.
  [[nodiscard]] virtual QWidget* Widget() const = 0;
  // The caption of a control that Alt and a letter can reach, else empty; and that letter.
  [[nodiscard]] virtual QString MnemonicCaption() const { return {}; }
  virtual void SetMnemonic(QChar /*letter*/) {}
};

}  // namespace benevix
