#pragma once

#include <functional>
#include <string>

#include "base/runtime_error.h"
#include "controls/desk.h"

namespace benevix {

// What the user does, on either face: each deed changes the structs as the user's hand would and
// raises its events. A deed that cannot be done (the control is disabled, hidden or held up, or the
// program waits or has ended) changes nothing and gives false.
class Input {
 public:
  Input(Desk& desk, const EventTable& events) : desk_(desk), events_(events) {}

  // Called after every deed, first: brings what the windows show of other values into line.
  std::function<void()> derive = [] {};
  // Called after every deed, last; the mirror brings the windows into line.
  std::function<void()> afterEvent = [] {};
  // An error that no handler took.
  std::function<void(const RuntimeError&)> onError = [](const RuntimeError&) {};

  // A click on what takes clicks; `element` is a menu array's.
  bool Click(const NamedControl& control, int element = -1);
  // The control's shortcut was pressed: a click that leaves the focus where it is, or the way to a
  // box or list.
  bool Shortcut(const NamedControl& control);
  bool Click(Button& button);
  bool Choose(OptionButton& option);
  bool Toggle(CheckBox& box);
  bool ChooseMenu(MenuItem& item);
  bool ChooseMenu(MenuArray& array, int index);
  bool Click(Label& label);
  bool Click(PictureBox& picture);
  bool MouseUp(Control& control, MouseButton button);
  bool Hover(Control& control);

  // Moves the focus; the control that had it loses it.
  bool Focus(Control& control);
  bool Leave(Control& control);

  // Whether the typed character stays; asks the box's key filter.
  bool Accepts(TextBox& box, char typed);
  // The user's change made `text` of what the box held.
  bool Type(TextBox& box, std::string text);
  bool Type(ComboBox& combo, std::string text);
  // The character was typed in the list.
  bool Type(ListView& list, char typed);
  // A key was pressed and released in the control. Enter then presses a button that has the focus,
  // otherwise what takes Enter in the window; Escape presses what takes it, or closes the window.
  bool Key(const Control& control, int key);
  // The same in a window where nothing has the focus.
  bool Key(Window& window, int key);
  // Tab moves the focus on, unless its handler moved it.
  bool Tab(Control& control, bool forward);
  bool Tab(Window& window, bool forward);

  bool Pick(ComboBox& combo, int index);
  bool SelectRow(ListView& list, int row, MouseButton button, bool byKeyboard = false);
  bool Scroll(ScrollBar& bar, int value);
  bool Tick(Timer& timer);

  // The user closes the window by its frame.
  bool Close(Window& window);

  // Runs something of the program where its end and its errors are taken; afterwards the windows
  // are brought into line.
  void Enter(const std::function<void()>& what);

 private:
  bool Do(const Control& control, const std::function<void(Desk::Entry&)>& what);
  bool AnswerKey(const Desk::Entry& entry, int key);
  void Fire(const Control& control, Event event, EventArgs args = {});

  Desk& desk_;
  const EventTable& events_;
  bool busy_ = false;
};

}  // namespace benevix
