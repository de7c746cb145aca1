#pragma once

#include <functional>
#include <map>
#include <string_view>
#include <utility>

#include "controls/controls.h"

namespace benevix {

enum class Event {
  Load,    // a window was loaded
  Unload,  // a window is about to be unloaded
  Close,   // the user closes a window; without a handler it is unloaded
  Click,
  MouseUp,  // args.button
  MouseMove,
  Change,    // the user changed the text
  KeyPress,  // args.key is the typed character; setting it to 0 discards it
  Paste,     // args.pasted has several characters; emptying it discards them all
  KeyUp,     // args.key is the key code
  GotFocus,
  LostFocus,
  ItemClick,    // a row was chosen; args.button, args.byKeyboard
  ColumnClick,  // the heading args.index of a table
  Tick,
  Scroll,
};

// Key codes of KeyUp, and of KeyPress for Backspace.
namespace keys {
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kDown = 256;  // no character
}  // namespace keys

enum class MouseButton { Left = 1, Right = 2 };

struct EventArgs {
  int index = -1;  // of a menu array's element, or of a column
  int key = 0;
  std::string_view pasted = {};
  MouseButton button = MouseButton::Left;
  bool byKeyboard = false;
};

// Which event of which control or window goes to which handler. They are known by their addresses,
// which hold: the window structs live as long as the program, and going back to their design
// assigns them in place.
class EventTable {
 public:
  using Handler = std::function<void(EventArgs&)>;

  void On(const Window& window, Event event, Handler handler) {
    handlers_[{&window, event}] = std::move(handler);
  }
  void On(const Control& control, Event event, Handler handler) {
    handlers_[{&control, event}] = std::move(handler);
  }

  // For every element of an array; the handler also takes the element's index.
  template <class C, std::size_t N>
  void On(C (&array)[N], Event event, const std::function<void(int, EventArgs&)>& handler) {
    for (std::size_t i = 0; i < N; ++i) {
      On(array[i], event,
         [handler, index = static_cast<int>(i)](EventArgs& args) { handler(index, args); });
    }
  }

  // Whether there is a handler; runs it when there is.
  bool Fire(const Window& window, Event event, EventArgs& args) const {
    return Run(&window, event, args);
  }
  bool Fire(const Control& control, Event event, EventArgs& args) const {
    return Run(&control, event, args);
  }

 private:
  bool Run(const void* target, Event event, EventArgs& args) const {
    const auto found = handlers_.find({target, event});
    if (found == handlers_.end()) return false;
    found->second(args);
    return true;
  }

  std::map<std::pair<const void*, Event>, Handler> handlers_;
};

}  // namespace benevix
