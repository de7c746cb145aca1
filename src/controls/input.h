#pragma once

#include <functional>
#include <string>

#include "base/runtime_error.h"
#include "controls/desk.h"

namespace benevix {

// The user's actions, the same for both front ends: each changes the structs and raises its events.
// An action that cannot be done (the control is disabled, hidden or below a modal window, or the
// program waits or has ended) changes nothing and gives false. While the program waits for a
// request, what ends requests is done at once, and Escape cancels the request.
class Input {
 public:
  Input(Desk& desk, const EventTable& events) : desk_(desk), events_(events) {}

  // Called after every action: works out what the structs show of the program's other values.
  std::function<void()> derive = [] {};
  // Called after that; the mirror updates the windows.
  std::function<void()> afterEvent = [] {};
  // Ends the request that the program waits for.
  std::function<void()> cancelRequest = [] {};
  // Called with an error that no handler caught.
  std::function<void(const RuntimeError&)> onError = [](const RuntimeError&) {};

  // A click on any control that takes clicks; `element` is the index in a menu array.
  bool Click(const NamedControl& control, int element = -1);
  // The control's shortcut was pressed: a click that leaves the focus where it is, or the way to a
  // box or list.
  bool Shortcut(const NamedControl& control);
  bool Click(Button& button);
  bool Choose(OptionButton& option);
  bool Toggle(CheckBox& box);
  bool ChooseMenu(MenuItem& item);
  bool ChooseMenu(MenuArray& array, int index);
  bool Click(Label& label) { return ClickWithoutFocus(label); }
  bool Click(PictureBox& picture) { return ClickWithoutFocus(picture); }
  bool Click(Shape& shape) { return ClickWithoutFocus(shape); }
  bool MouseUp(Control& control, MouseButton button);
  bool Hover(Control& control);

  // Moves the focus; the control that had it loses it.
  bool Focus(Control& control);
  bool Leave(Control& control);

  // Whether the box's key filter lets the typed character in.
  bool Accepts(const Control& box, char typed);
  // What the filter lets in of a text that was typed or pasted.
  std::string Accepted(const Control& box, const std::string& typed);
  // Something typed or pasted was not let in: the note at the box says what it takes.
  bool Refuse(Control& box);
  // The user has changed the text to `text`.
  bool Type(TextBox& box, std::string text);
  bool Type(ComboBox& combo, std::string text);
  // The character was typed in the list.
  bool Type(ListView& list, char typed);
  // A key (see keys) was pressed and released in the control. Enter then presses the button that
  // has the focus, otherwise the control with the shortcut Enter; Escape presses the control with
  // the shortcut Escape, or closes the window.
  bool Key(const Control& control, int key);
  // The same in a window where no control has the focus.
  bool Key(Window& window, int key);
  // Tab moves the focus on, unless its handler moved it.
  bool Tab(Control& control, bool forward);
  bool Tab(Window& window, bool forward);

  bool Pick(ComboBox& combo, int index);  // from 0
  // The row counts from 1; one that is not shown cannot be selected.
  bool SelectRow(ListView& list, int row, MouseButton button, bool byKeyboard = false);
  bool SelectRow(Table& table, int row, bool byKeyboard = false);
  bool ClickColumn(Table& table, int column);  // from 0
  bool Scroll(ScrollBar& bar, int value);
  bool Tick(Timer& timer);
  // The user, or the page itself, has moved on in the pages of the viewer.
  void MovedOn(PageViewer& viewer, bool canGoBack);
  void Arrived(PageViewer& viewer, std::string address);

  // The user closes the window by its frame.
  bool Close(Window& window);

  // Runs a part of the program as an action: catches its end and its errors, and afterwards updates
  // the windows.
  void Enter(const std::function<void()>& what);

 private:
  bool Do(const Control& control, const std::function<void(Desk::Entry&)>& what);
  bool Interrupt(const std::function<void()>& what);
  bool ClickWithoutFocus(Control& control);
  bool AnswerKey(const Desk::Entry& entry, int key);
  void Fire(const Control& control, Event event, EventArgs args = {});

  Desk& desk_;
  const EventTable& events_;
  bool busy_ = false;
};

}  // namespace benevix
