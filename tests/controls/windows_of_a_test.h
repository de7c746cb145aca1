#pragma once

#include <string>

#include "controls/input.h"

namespace benevix {

struct MainOfATest : Window {
  MainOfATest() {
    box[1].enabled = false;
    menu.visible = false;
    items.items[3].caption = "three";
    combo.list = {"a", "b"};
  }
  Label label{"label"};
  TextBox box[3];
  Frame frame{"frame"};
  OptionButton option[3] = {OptionButton("0", {}, "frame"), OptionButton("1", {}, "frame"),
                            OptionButton("2", {}, "frame")};
  CheckBox check;
  ComboBox combo{true};
  ListView list;
  Button button{"button"};
  Timer timer{10, false};
  MenuItem menu{"menu"};
  MenuItem item{"item", "menu"};
  MenuArray items{"menu"};
};

template <class F>
void visit(MainOfATest& window, F&& f) {
  f("label", window.label);
  f("box", window.box);
  f("frame", window.frame);
  f("option", window.option);
  f("check", window.check);
  f("combo", window.combo);
  f("list", window.list);
  f("button", window.button);
  f("timer", window.timer);
  f("menu", window.menu);
  f("item", window.item);
  f("items", window.items);
}

struct SideOfATest : Window {
  TextBox box{"tip"};
  Button button{"button"};
};

template <class F>
void visit(SideOfATest& window, F&& f) {
  f("box", window.box);
  f("button", window.button);
}

// A main and a side window on a desk, and the events that were heard, as "box1.GotFocus ".
struct DeskOfATest {
  DeskOfATest() {
    desk.Add("main", main);
    desk.Add("side", side);
    const auto hear = [this](const auto& target, const std::string& name) {
      for (const auto& [event, word] :
           {std::pair(Event::Click, "Click"), std::pair(Event::MouseUp, "MouseUp"),
            std::pair(Event::GotFocus, "Got"), std::pair(Event::LostFocus, "Lost"),
            std::pair(Event::KeyUp, "KeyUp"), std::pair(Event::Change, "Change"),
            std::pair(Event::ItemClick, "ItemClick"), std::pair(Event::Tick, "Tick"),
            std::pair(Event::Load, "Load"), std::pair(Event::Unload, "Unload")}) {
        events.On(target, event, [this, text = name + "." + word](EventArgs& args) {
          heard += text + (args.index < 0 ? "" : "(" + std::to_string(args.index) + ")") + " ";
        });
      }
    };
    hear(static_cast<const Window&>(side), "side");
    for (auto* window : {&desk.Find(main), &desk.Find(side)}) {
      for (const NamedControl& control : window->controls) {
        const std::string index = control.index < 0 ? "" : std::to_string(control.index);
        hear(control.Base(), (window->window == &side ? "side." : "") + control.name + index);
      }
    }
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
