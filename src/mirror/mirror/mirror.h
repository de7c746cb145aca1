#pragma once

#include <QObject>
#include <functional>
#include <map>

#include "controls/desk.h"
#include "controls/input.h"
#include "mirror/bindings/binding.h"
#include "mirror/mirror/window_binding.h"
#include "platform/waits.h"

namespace benevix {

// Keeps the windows on the screen in line with the desk. Nothing is decided here: the user's events
// go to the structs' handlers, and afterwards the widgets are made what the structs are. While the
// program waits, what the user does is thrown away.
class Mirror : public QObject, public Waits {
 public:
  enum class Timers { Run, Hold };

  Mirror(Scheme scheme, Timers timers) : scheme_(scheme), timers_(timers) {}
  ~Mirror() override { Detach(); }

  // One program at a time stands on the screen. With a layout the main window is as the user left
  // it.
  void Attach(Desk& desk, Input& input, const WindowLayout* layout = nullptr);
  void Detach();

  // Called when the program has ended.
  std::function<void()> onEnded = [] {};

  void Begin() override;
  void End() override;
  void DoEvents() override;

  // What stands on the screen for a window, or null.
  [[nodiscard]] WindowBinding* BindingOf(const Window& window) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Sync();
  void BringIntoLine();
  void ApplyFocus();
  [[nodiscard]] QWidget* TransientParent(const Window& window) const;

  Scheme scheme_;
  Timers timers_;
  Desk* desk_ = nullptr;
  const WindowLayout* layout_ = nullptr;
  std::unique_ptr<BindingContext> context_;
  std::map<const Window*, WindowBinding*> bindings_;  // deleted later, when no event is in them
  int waits_ = 0;
};

}  // namespace benevix
