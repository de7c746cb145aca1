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

// The mirror: shows the structs of the windows as real widgets. Nothing is decided here: the user's
// events go to the structs' handlers, and afterwards the widgets are updated from the
// structs. While the program waits, the user's input is thrown away, except what ends a request;
// the second press of a double click is no click of its own.
class Mirror : public QObject, public Waits {
 public:
  enum class Timers { Run, Hold };

  // Needs a QApplication.
  Mirror(Scheme scheme, Timers timers);
  ~Mirror() override;

  // Shows the windows of this desk instead of those of an earlier one. With a layout the main
  // window is arranged as the user left it.
  void Attach(Desk& desk, Input& input, const WindowLayout* layout = nullptr);
  void Detach();

  // The desktop asks for another scheme than before, to which the theme has changed already.
  void SetScheme(Scheme scheme);

  // Brings the windows to the front, also when they are minimized, and the one that can be worked
  // in, or the question that waits for an answer, gets the keys.
  void BringToFront();

  // Called when the program has ended.
  std::function<void()> onEnded = [] {};

  void Begin() override;
  void End() override;
  void DoEvents() override;

  // Null for a window that is not drawn now.
  [[nodiscard]] WindowBinding* BindingOf(const Window& window) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Sync();
  void UpdateWindows();
  void ApplyFocus();
  [[nodiscard]] bool EndsRequest(const QObject& watched, const QEvent& event) const;
  // A busy pointer, while the desk has something going on.
  void SetBusy(bool busy);
  [[nodiscard]] QWidget* TransientParent(const Window& window) const;
  // What the window stands beside; null for none.
  [[nodiscard]] const QWidget* Neighbour(const Window& window) const;

  Scheme scheme_;
  Timers timers_;
  Desk* desk_ = nullptr;
  const WindowLayout* layout_ = nullptr;
  std::unique_ptr<BindingContext> context_;
  // By the windows' addresses: the structs live as long as the desk. A binding is deleted later,
  // when none of its event handlers runs any more.
  std::map<const Window*, WindowBinding*> bindings_;
  int waits_ = 0;
  bool busy_ = false;
};

}  // namespace benevix
