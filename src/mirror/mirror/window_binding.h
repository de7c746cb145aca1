#pragma once

#include <QLabel>
#include <QObject>
#include <QWidget>
#include <memory>
#include <vector>

#include "controls/desk.h"
#include "mirror/bindings/binding.h"
#include "mirror/bindings/menu_binding.h"
#include "mirror/look/note_bubble.h"
#include "mirror/mirror/window_keys.h"

class QKeyEvent;
class QShortcut;

namespace benevix {

class WindowLayout;

// A window on the screen, from its load to its unload: its widget and the bindings of its controls.
class WindowBinding : public QObject {
 public:
  // With a layout a main window is arranged as the user left it.
  WindowBinding(Desk& desk, const Desk::Entry& entry, BindingContext& context,
                const WindowLayout* layout);
  ~WindowBinding() override;

  // Updates all widgets and shows or hides the window. `transientParent` is the window it
  // stays above, `neighbour` what it stands beside; null for none.
  void Apply(QWidget* transientParent, const QWidget* neighbour);
  // Gives the widget focus to the control that has the desk's.
  void ApplyFocus();
  void ForgetPress() { keys_.ForgetPress(); }

  // False once the window has been unloaded, even if it has been loaded again since.
  [[nodiscard]] bool IsOf(const Desk::Entry& entry) const {
    return entry.loaded && entry.loads == loads_;
  }
  [[nodiscard]] QWidget& Widget() { return *widget_; }
  // Null for a control that is not drawn.
  [[nodiscard]] QWidget* WidgetOf(const Control& control) const;
  // Whether a click on the widget ends a request.
  [[nodiscard]] bool EndsRequests(const QObject& widget) const;
  // The note that stands at a widget; empty for none.
  [[nodiscard]] QString NoteOf(const QWidget& widget) const { return note_->NoteOf(widget); }
  // Of a menu item, or of the element of a menu array; null when there is none.
  [[nodiscard]] QAction* ActionOf(const NamedControl& control, int element) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct BoundControl {
    const NamedControl* control;
    std::unique_ptr<Binding> binding;
  };

  void GiveMnemonics();
  void MakeShortcuts(const Desk::Entry& entry);
  [[nodiscard]] bool IsShortcut(const QKeyEvent& key) const;
  void ApplyControls();
  void ApplyNote();
  void ApplyWindow();
  void ShowActivity();
  // Whether the user had a place for the window, where it is now.
  bool IsPlacedAgain();
  void ShowWindow(QWidget* transientParent, const QWidget* neighbour);
  [[nodiscard]] const BoundControl* BoundTo(const QObject* widget) const;
  bool FilterWindow(QEvent& event);
  bool FilterControl(const BoundControl& bound, QEvent& event);

  Desk& desk_;
  BindingContext& context_;
  const WindowLayout* layout_;
  Window& window_;
  int loads_;
  std::unique_ptr<QWidget> widget_;
  QLabel* activityLine_;  // tells what the program waits for; null in windows that never wait
  WindowKeys keys_;
  NoteBubble* note_;  // a child of the widget
  std::vector<BoundControl> bound_;
  std::unique_ptr<MenuBinding> menus_;
  std::vector<const QShortcut*> shortcuts_;  // children of the widget
};

}  // namespace benevix
