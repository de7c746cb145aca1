#pragma once

#include <string>

#include "controls/input.h"

namespace benevix {

struct MainOfATest : Window {
  static constexpr const char* kName = "main";

  MainOfATest() { box[1].enabled = menu.visible = false; }
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
void visit(MainOfATest& window, F&& f) {
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

struct SideOfATest : Window {
  static constexpr const char* kName = "side";

  TextBox text{"tip"};
  Button ok{"OK"};
};

template <class F>
void visit(SideOfATest& window, F&& f) {
  f("text", window.text);
  f("ok", window.ok);
}

// A main and a side window on a desk, and the events that were heard, as "box1.Got ".
struct DeskOfATest {
  DeskOfATest() {
    desk.Add(main);
    desk.Add(side);
    const std::pair<Event, const char*> words[] = {{Event::Click, ".Click "},
                                                   {Event::MouseUp, ".Up "},
                                                   {Event::GotFocus, ".Got "},
                                                   {Event::LostFocus, ".Lost "},
                                                   {Event::KeyUp, ".Key "}};
    for (auto* entry : {&desk.Find(main), &desk.Find(side)}) {
      for (const NamedControl& control : entry->controls) {
        const std::string index = control.index < 0 ? "" : std::to_string(control.index);
        for (const auto& [event, word] : words) {
          events.On(control.Base(), event,
                    [this, text = control.name + index + word](EventArgs&) { heard += text; });
        }
      }
    }
    desk.Show(main);
    heard.clear();
  }
  DeskOfATest(const DeskOfATest&) = delete;
  DeskOfATest& operator=(const DeskOfATest&) = delete;

  // What was heard since it was last asked.
  std::string Heard() { return std::exchange(heard, {}); }

  MainOfATest main;
  SideOfATest side;
  EventTable events;
  Desk desk{events};
  Input input{desk, events};
  std::string heard;
};

}  // namespace benevix
