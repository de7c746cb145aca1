#pragma once

#include <string>

#include "controls/input.h"

namespace benevix {

struct TestMainWindow : Window {
  static constexpr const char* kName = "main";

  TestMainWindow() { box[1].enabled = menu.visible = false; }
  TextBox box[3];
  Frame frame{"frame"};
  OptionButton option[3] = {OptionButton("0", {}, "frame"), OptionButton("1", {}, "frame"),
                            OptionButton("2", {}, "frame")};
  CheckBox check;
  ListView list;
  Button button;
  Label label;
  MenuItem menu, item{"item", "menu"};
  MenuArray items{"menu"};
};

template <class F>
void visit(TestMainWindow& window, F&& f) {
  f("box", window.box);
  f("frame", window.frame);
  f("option", window.option);
  f("check", window.check);
  f("list", window.list);
  f("button", window.button);
  f("label", window.label);
  f("menu", window.menu);
  f("item", window.item);
  f("items", window.items);
}

struct TestSideWindow : Window {
  static constexpr const char* kName = "side";

  TextBox text{"tip"};
  Button ok{"OK"};
};

template <class F>
void visit(TestSideWindow& window, F&& f) {
  f("text", window.text);
  f("ok", window.ok);
}

// A main and a side window on a desk, and a record of the events raised there: "box1.Got ".
struct TwoWindows {
  TwoWindows() {
    desk.Add(main);
    desk.Add(side);
    const std::pair<Event, const char*> endings[] = {{Event::Click, ".Click "},
                                                     {Event::MouseUp, ".Up "},
                                                     {Event::GotFocus, ".Got "},
                                                     {Event::LostFocus, ".Lost "},
                                                     {Event::KeyUp, ".Key "}};
    for (auto* entry : {&desk.Find(main), &desk.Find(side)}) {
      for (const NamedControl& control : entry->controls) {
        const std::string index = control.index < 0 ? "" : std::to_string(control.index);
        for (const auto& [event, ending] : endings) {
          events.On(control.Base(), event,
                    [this, text = control.name + index + ending](EventArgs&) { raised += text; });
        }
      }
    }
    desk.Show(main);
    raised.clear();
  }
  TwoWindows(const TwoWindows&) = delete;
  TwoWindows& operator=(const TwoWindows&) = delete;

  // The events since the last call.
  std::string Raised() { return std::exchange(raised, {}); }

  TestMainWindow main;
  TestSideWindow side;
  EventTable events;
  Desk desk{events};
  Input input{desk, events};
  std::string raised;
};

}  // namespace benevix
