#pragma once

#include <QObject>
#include <QWidget>
#include <memory>
#include <vector>

#include "controls/desk.h"
#include "mirror/bindings/binding.h"
#include "mirror/bindings/menu_binding.h"

class QHelpEvent;
class QKeyEvent;

namespace benevix {

// One life of a window on the screen: its widget and the bindings of its controls.
class WindowBinding : public QObject {
 public:
  WindowBinding(Desk& desk, const Desk::Entry& entry, BindingContext& context);
  ~WindowBinding() override;

  // Brings all widgets into line and shows or hides the window. `transientParent` is the window it
  // stays above.
  void Apply(QWidget* transientParent);
  // Gives the widget focus to the control that has the desk's.
  void ApplyFocus();
  // A press that a wait follows is no longer answered by its release.
  void ForgetPress() { pressedKey_ = 0; }

  [[nodiscard]] bool IsOf(const Desk::Entry& entry) const {
    return entry.loaded && entry.loads == loads_;
  }
  [[nodiscard]] const Window& Of() const { return *window_; }
  [[nodiscard]] QWidget& Widget() { return *widget_; }
  [[nodiscard]] QWidget* WidgetOf(const Control& control) const;
  [[nodiscard]] QAction* ActionOf(const NamedControl& control, int element) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Bound {
    const NamedControl* control;
    std::unique_ptr<Binding> binding;
  };

  void ApplyWindow();
  void ShowWindow(QWidget* transientParent);
  [[nodiscard]] const Bound* BoundTo(const QObject* widget) const;
  void GiveMnemonics();
  void MakeShortcuts(const Desk::Entry& entry);
  // Of a control, or of the window itself while no control has the focus.
  bool FilterKey(const Bound* bound, QEvent& event);
  bool FilterListKey(const Bound& bound, const QKeyEvent& key);
  bool ShowTip(const Bound& bound, const QHelpEvent& event);
  void OpenListMenu(const Bound& bound);
  void FilterMouse(const Bound& bound, QEvent& event);

  Desk& desk_;
  BindingContext& context_;
  Window* window_;
  int loads_;
  std::unique_ptr<QWidget> widget_;
  std::vector<Bound> bound_;
  std::unique_ptr<MenuBinding> menus_;
  const QObject* pressedIn_ = nullptr;
  int pressedKey_ = 0;
  const QObject* mousePressedIn_ = nullptr;
};

}  // namespace benevix
