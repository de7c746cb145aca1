#pragma once

#include <QWidget>

#include "controls/directory.h"
#include "controls/input.h"
#include "mirror/look/theme.h"

namespace benevix {

class WindowLayout;

// What the bindings of all windows share.
struct BindingContext {
  Input& input;
  Scheme scheme = Scheme::Light;
  bool applying = false;  // the program writes into widgets; what they signal is not the user's
  bool runTimers = true;
  const WindowLayout* layout = nullptr;  // where the main window's arrangement is kept, if anywhere
  QPoint popUpPlace = {};  // where a menu opens that was asked for by its key; null: at the mouse
};

// Binds one control to its widget: hands the user's events on, and brings the widget into line with
// the struct, only where it differs.
class Binding {
 public:
  virtual ~Binding() = default;
  // The caption of a control that Alt and a letter can reach, else empty; and that letter.
  [[nodiscard]] virtual QString MnemonicCaption() const { return {}; }
  virtual void SetMnemonic(QChar /*letter*/) {}
  virtual void Apply() = 0;
  [[nodiscard]] virtual QWidget* Widget() const = 0;
};

// The binding of a control to the widget that bears its name in the drawing; null for a control
// that is not drawn.
std::unique_ptr<Binding> MakeBinding(const NamedControl& control, QWidget& window,
                                     BindingContext& context);

// The name of a control's widget in a drawing: Text1_2.
QString WidgetName(const NamedControl& control);

// Menus have actions in place of widgets; see MenuBinding.
[[nodiscard]] bool IsMenu(const NamedControl& control);

}  // namespace benevix
