#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "controls/directory.h"
#include "controls/events.h"

namespace benevix {

// How a window is shown.
enum class Modality { Modeless, Modal };
enum class Attention { None, KeepsMainDisabled };

// The desk: which windows are loaded, shown, modal and in front, and where the focus is. A window
// that is unloaded goes back to its design values; a hidden one keeps what it holds.
class Desk {
 public:
  struct Entry {
    std::string name;
    Window* window = nullptr;
    Directory controls;
    bool loaded = false;
    bool shown = false;
    bool modal = false;
    bool keepsMainDisabled = false;
    int loads = 0;  // how often it has been loaded; a window loaded again is drawn anew
    Control* focus = nullptr;
    std::function<void()> reset;
  };

  explicit Desk(const EventTable& events) : events_(events) {}

  // Adds a window, whose struct gives its name as kName. The first one is the main window.
  template <class W>
  void Add(W& window) {
    Entry& entry = entries_.emplace_back();
    entry.name = W::kName;
    entry.window = &window;
    entry.controls = ControlsOf(window);
    entry.reset = [&window] { window = W(); };
  }

  void Load(Window& window);
  void Show(Window& window, Modality modality = Modality::Modeless,
            Attention attention = Attention::None);
  void Hide(Window& window);
  void Unload(Window& window);

  // The program stops at once: throws ProgramEnded.
  [[noreturn]] void End();
  [[nodiscard]] bool Ended() const { return ended_; }

  [[nodiscard]] bool IsLoaded(const Window& window) const { return Find(window).loaded; }
  [[nodiscard]] bool IsShown(const Window& window) const { return Find(window).shown; }

  // The main window is disabled while a shown window keeps the user's attention.
  [[nodiscard]] bool IsEnabled(const Window& window) const;

  // Whether the user can work in the window: it is shown, enabled and not below a modal one.
  [[nodiscard]] bool IsUsable(const Window& window) const;

  // Whether the user can work with the control: its window, all that holds it and itself.
  [[nodiscard]] bool IsUsable(const Entry& entry, const Control& control) const;

  // The control that has the focus in the window, or null.
  [[nodiscard]] Control* FocusOf(const Window& window) const { return Find(window).focus; }

  // Moves the focus of the control's window there; raises LostFocus and GotFocus. A control that
  // cannot take the focus leaves it where it is.
  void SetFocus(Control& control);
  void ClearFocus(Window& window);
  // To the next (previous) control in the window's order that takes the focus.
  void MoveFocus(Entry& entry, bool forward);

  // Takes the focus from controls that can no longer have it, without an event.
  void Settle();

  [[nodiscard]] const std::vector<Entry>& Entries() const { return entries_; }
  [[nodiscard]] std::vector<Entry>& Entries() { return entries_; }
  [[nodiscard]] Entry& Find(const Window& window);
  [[nodiscard]] const Entry& Find(const Window& window) const;
  // The entry whose control it is.
  [[nodiscard]] Entry& Holding(const Control& control);

  // Whether the program waits for a request, which the user may end.
  [[nodiscard]] bool IsRequesting() const { return requesting_; }
  void SetRequesting(bool requesting) { requesting_ = requesting; }

  // What the program has been waiting for longer than a moment, told to the user while it lasts;
  // empty while he need not wait.
  [[nodiscard]] const std::string& Activity() const { return activity_; }
  void SetActivity(std::string activity) { activity_ = std::move(activity); }

  // The shown windows from the bottom to the top.
  [[nodiscard]] const std::vector<Window*>& Shown() const { return shown_; }

  // Whether the control is of a kind that can take the focus.
  [[nodiscard]] static bool TakesFocus(const NamedControl& control);

 private:
  void ChangeFocus(Entry& entry, Control* to);
  // The control and all that holds it are enabled and visible.
  [[nodiscard]] static bool IsOpen(const Entry& entry, const Control& control);
  [[nodiscard]] static bool IsTabStop(const Entry& entry, const NamedControl& control);
  void Fire(const Window& window, Event event) const;
  void Fire(const Control& control, Event event) const;

  const EventTable& events_;
  std::vector<Entry> entries_;
  std::vector<Window*> shown_;
  std::string activity_;
  bool requesting_ = false;
  bool ended_ = false;
};

}  // namespace benevix
