#include "controls/input.h"

#include <algorithm>
#include <string_view>

namespace benevix {
namespace {

const NamedControl& Named(const Desk::Entry& entry, const Control& control) {
  return *std::find_if(entry.controls.begin(), entry.controls.end(),
                       [&](const NamedControl& named) { return &named.Base() == &control; });
}

bool BreaksLines(const NamedControl& control) {
  const TextBox* const box = control.As<TextBox>();
  return box != nullptr && box->multiLine;
}

// What a refused character has said stays while the user goes on: "12,50" must not pass as 1250.
void DropNote(Control& box, const std::string& text) {
  if (box.note != box.takes || text.empty()) box.note.clear();
}

}  // namespace

void Input::Enter(const std::function<void()>& what) {
  // One action at a time: what the user does while a handler waits is thrown away.
  if (busy_ || desk_.Ended()) return;
  busy_ = true;
  try {
    what();
  } catch (const ProgramEnded&) {
    // The desk has recorded the end.
  } catch (const RuntimeError& error) {
    try {
      onError(error);
    } catch (const ProgramEnded&) {
      // Ended while the error was shown.
    }
  }
  busy_ = false;
  desk_.Settle();
  derive();
  afterEvent();
}

bool Input::Do(const Control& control, const std::function<void(Desk::Entry&)>& what) {
  Desk::Entry& entry = desk_.Holding(control);
  if (!desk_.IsUsable(entry, control)) return false;
  const auto action = [&] { what(entry); };
  if (busy_) return control.endsRequests && Interrupt(action);
  Enter(action);
  return true;
}

// Within the action that waits, which goes on when the request has ended.
bool Input::Interrupt(const std::function<void()>& what) {
  if (!desk_.IsRequesting() || desk_.Ended()) return false;
  try {
    what();
  } catch (const ProgramEnded&) {
    cancelRequest();  // its caller ends in turn
  }
  return true;
}

void Input::Fire(const Control& control, Event event, EventArgs args) {
  events_.Fire(control, event, args);
}

bool Input::Click(const NamedControl& control, int element) {
  if (auto* const button = control.As<Button>()) return Click(*button);
  if (auto* const option = control.As<OptionButton>()) return Choose(*option);
  if (auto* const box = control.As<CheckBox>()) return Toggle(*box);
  if (auto* const label = control.As<Label>()) return Click(*label);
  if (auto* const picture = control.As<PictureBox>()) return Click(*picture);
  if (auto* const shape = control.As<Shape>()) return Click(*shape);
  if (auto* const item = control.As<MenuItem>()) return ChooseMenu(*item);
  if (auto* const array = control.As<MenuArray>()) return ChooseMenu(*array, element);
  return false;
}

bool Input::Shortcut(const NamedControl& control) {
  Button* const button = control.As<Button>();
  // The focus stays where the user works.
  if (button != nullptr) return Do(*button, [&](Desk::Entry&) { Fire(*button, Event::Click); });
  return Desk::TakesFocus(control) ? Focus(control.Base()) : Click(control);
}

bool Input::Click(Button& button) {
  if (busy_ && EndsRequests(button) && !button.endsRequests) return Interrupt(cancelRequest);
  return Do(button, [&](Desk::Entry&) {
    desk_.SetFocus(button);
    Fire(button, Event::Click);
  });
}

bool Input::Choose(OptionButton& option) {
  return Do(option, [&](Desk::Entry& entry) {
    desk_.SetFocus(option);
    if (!option.value) {
      const std::string& array = Named(entry, option).name;
      for (const NamedControl& named : entry.controls) {
        if (named.name == array) named.As<OptionButton>()->value = &named.Base() == &option;
      }
      Fire(option, Event::Click);
    }
    Fire(option, Event::MouseUp);
  });
}

bool Input::Toggle(CheckBox& box) {
  return Do(box, [&](Desk::Entry&) {
    desk_.SetFocus(box);
    box.value = box.value == 0 ? 1 : 0;
    Fire(box, Event::Click);
    Fire(box, Event::MouseUp);
  });
}

bool Input::ChooseMenu(MenuItem& item) {
  return Do(item, [&](Desk::Entry&) { Fire(item, Event::Click); });
}

bool Input::ChooseMenu(MenuArray& array, int index) {
  const auto element = array.items.find(index);
  if (element == array.items.end() || !element->second.enabled || !element->second.visible) {
    return false;
  }
  return Do(array, [&](Desk::Entry&) { Fire(array, Event::Click, {.index = index}); });
}

bool Input::ClickWithoutFocus(Control& control) {
  return Do(control, [&](Desk::Entry&) {
    Fire(control, Event::Click);
    Fire(control, Event::MouseUp);
  });
}

bool Input::MouseUp(Control& control, MouseButton button) {
  return Do(control, [&](Desk::Entry&) { Fire(control, Event::MouseUp, {.button = button}); });
}

bool Input::Hover(Control& control) {
  return Do(control, [&](Desk::Entry&) { Fire(control, Event::MouseMove); });
}

bool Input::Focus(Control& control) {
  return Do(control, [&](Desk::Entry&) { desk_.SetFocus(control); });
}

bool Input::Leave(Control& control) {
  return Do(control, [&](Desk::Entry& entry) {
    desk_.SetFocus(control);
    desk_.ClearFocus(*entry.window);
  });
}

bool Input::Accepts(const Control& box, char typed) {
  EventArgs args;
  args.key = static_cast<unsigned char>(typed);
  events_.Fire(box, Event::KeyPress, args);
  return args.key != 0;
}

std::string Input::Accepted(const Control& box, const std::string& typed) {
  EventArgs args;
  args.pasted = typed;
  if (typed.size() > 1) events_.Fire(box, Event::Paste, args);
  std::string accepted;
  for (const char c : args.pasted) {
    if (Accepts(box, c)) accepted += c;
  }
  return accepted;
}

bool Input::Refuse(Control& box) {
  return Do(box, [&](Desk::Entry&) { box.note = box.takes; });
}

bool Input::Type(TextBox& box, std::string text) {
  return Do(box, [&](Desk::Entry&) {
    box.text = std::move(text);
    box.typed = true;
    DropNote(box, box.text);
    Fire(box, Event::Change);
  });
}

bool Input::Type(ComboBox& combo, std::string text) {
  return Do(combo, [&](Desk::Entry&) {
    combo.text = std::move(text);
    DropNote(combo, combo.text);
    Fire(combo, Event::Change);
  });
}

bool Input::Type(ListView& list, char typed) {
  return Do(list, [&](Desk::Entry&) {
    Fire(list, Event::KeyPress, {.key = static_cast<unsigned char>(typed)});
  });
}

bool Input::Key(const Control& control, int key) {
  if (busy_ && key == keys::kEscape) return Interrupt(cancelRequest);
  const Desk::Entry& entry = desk_.Holding(control);
  const int life = entry.loads;
  const bool done = Do(control, [&](Desk::Entry&) { Fire(control, Event::KeyUp, {.key = key}); });
  if (!done || !entry.loaded || entry.loads != life) return done;
  const NamedControl& named = Named(entry, control);
  const PictureBox* const picture = named.As<PictureBox>();
  const bool isButton = picture != nullptr && picture->isButton;
  const bool isEnter = key == keys::kEnter && named.As<Button>() != nullptr;
  // The space bar presses the widgets of the other buttons by itself.
  if (isEnter || (isButton && (key == keys::kEnter || key == ' '))) {
    Click(named);
  } else if (key != keys::kEnter || !BreaksLines(named)) {
    AnswerKey(entry, key);
  }
  return true;
}

bool Input::Key(Window& window, int key) {
  if (busy_ && key == keys::kEscape) return Interrupt(cancelRequest);
  return AnswerKey(desk_.Find(window), key);
}

bool Input::AnswerKey(const Desk::Entry& entry, int key) {
  if (key != keys::kEnter && key != keys::kEscape) return false;
  const std::string_view name = key == keys::kEnter ? kEnterShortcut : kEscapeShortcut;
  const auto taker =
      std::find_if(entry.controls.begin(), entry.controls.end(),
                   [&](const NamedControl& named) { return named.Base().shortcut == name; });
  if (taker != entry.controls.end()) return Shortcut(*taker);
  return key == keys::kEscape && entry.window->closesByEscape && Close(*entry.window);
}

bool Input::Tab(Control& control, bool forward) {
  return Do(control, [&](Desk::Entry& entry) {
    control.note.clear();
    if (forward) Fire(control, Event::KeyUp, {.key = keys::kTab});
    const std::string refusal = control.note;
    const bool stayed = entry.focus == nullptr || entry.focus == &control;
    if (stayed && desk_.IsUsable(*entry.window)) desk_.MoveFocus(entry, forward);
    control.note = refusal;  // moving on takes notes away, but this one tells of the entry
  });
}

bool Input::Tab(Window& window, bool forward) {
  if (busy_ || !desk_.IsUsable(window)) return false;
  Enter([&] { desk_.MoveFocus(desk_.Find(window), forward); });
  return true;
}

bool Input::Pick(ComboBox& combo, int index) {
  if (index < 0 || index >= static_cast<int>(combo.list.size())) return false;
  return Do(combo, [&](Desk::Entry&) {
    combo.text = combo.list[static_cast<std::size_t>(index)];
    combo.note.clear();
    Fire(combo, Event::Click);
  });
}

bool Input::SelectRow(ListView& list, int row, MouseButton button, bool byKeyboard) {
  if (row < 1 || row > list.Count() || list.PlaceOf(row) == 0) return false;
  return Do(list, [&](Desk::Entry&) {
    desk_.SetFocus(list);
    list.selected = row;
    Fire(list, Event::ItemClick, {.button = button, .byKeyboard = byKeyboard});
  });
}

bool Input::SelectRow(Table& table, int row, bool byKeyboard) {
  if (row < 1 || row > table.Count()) return false;
  return Do(table, [&](Desk::Entry&) {
    if (table.takesFocus) desk_.SetFocus(table);
    table.selected = row;
    Fire(table, Event::ItemClick, {.byKeyboard = byKeyboard});
  });
}

bool Input::ClickColumn(Table& table, int column) {
  if (!table.canBeSorted || column < 0 || column >= static_cast<int>(table.columns.size())) {
    return false;
  }
  return Do(table, [&](Desk::Entry&) { Fire(table, Event::ColumnClick, {.index = column}); });
}

bool Input::Scroll(ScrollBar& bar, int value) {
  return Do(bar, [&](Desk::Entry&) {
    bar.value = value;
    Fire(bar, Event::Scroll);
  });
}

bool Input::Tick(Timer& timer) {
  const Desk::Entry& entry = desk_.Holding(timer);
  if (busy_ || desk_.Ended() || !entry.loaded || !timer.enabled) return false;
  Enter([&] { Fire(timer, Event::Tick); });
  return true;
}

void Input::MovedOn(PageViewer& viewer, bool canGoBack) {
  viewer.canGoBack = canGoBack;  // also while a handler waits, at whose end it is seen
  Enter([] {});
}

void Input::Arrived(PageViewer& viewer, std::string address) {
  viewer.shown = std::move(address);  // also while a handler waits
  Enter([] {});
}

bool Input::Close(Window& window) {
  const auto action = [&] {
    EventArgs args;
    if (!events_.Fire(window, Event::Close, args)) desk_.Unload(window);
  };
  // Also while another window keeps the user's attention: nobody can close that one now.
  if (busy_) return window.endsRequests && desk_.IsShown(window) && Interrupt(action);
  if (!desk_.IsUsable(window)) return false;
  Enter(action);
  return true;
}

}  // namespace benevix
