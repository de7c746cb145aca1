#include <functional>
#include <gtest/gtest.h>

#include "windows_of_a_test.h"

namespace benevix {
namespace {

class OneRow : public RowSource {
 public:
  [[nodiscard]] int Count() const override { return 1; }
  [[nodiscard]] std::string Text(int, int) const override { return "row"; }
};

class InputTest : public testing::Test, public DeskOfATest {
 protected:
  InputTest() {
    desk.Show(main);
    main.list.SetRows(std::make_shared<OneRow>());
    main.timer.enabled = true;
    Heard();
  }
};

TEST_F(InputTest, RaisesTheEventsOfEachDeed) {
  const struct {
    std::function<bool()> deed;
    const char* heard;
  } cases[] = {{[&] { return input.Click(main.button); }, "box0.Lost button.Got button.Click "},
               {[&] { return input.Click(main.label); }, "label.Click label.MouseUp "},
               {[&] { return input.Choose(main.option[1]); },
                "button.Lost option1.Got option1.Click option1.MouseUp "},
               {[&] { return input.Choose(main.option[1]); }, "option1.MouseUp "},
               {[&] { return input.Toggle(main.check); },
                "option1.Lost check.Got check.Click check.MouseUp "},
               {[&] { return input.ChooseMenu(main.item); }, "item.Click "},
               {[&] { return input.ChooseMenu(main.items, 3); }, "items.Click(3) "},
               {[&] { return input.Type(main.box[0], "1"); }, "box0.Change "},
               {[&] { return input.Pick(main.combo, 1); }, "combo.Click "},
               {[&] { return input.SelectRow(main.list, 1, MouseButton::Left); },
                "check.Lost list.Got list.ItemClick "},
               {[&] { return input.Leave(main.box[2]); }, "list.Lost box2.Got box2.Lost "},
               {[&] { return input.Tick(main.timer); }, "timer.Tick "}};
  for (const auto& [deed, expected] : cases) {
    EXPECT_TRUE(deed()) << expected;
    EXPECT_EQ(Heard(), expected);
  }
  EXPECT_EQ(Chosen(main.option), 1);
  EXPECT_EQ(main.check.value, 1);
  EXPECT_TRUE(main.box[0].typed);
  EXPECT_EQ(main.combo.text, "b");
  EXPECT_EQ(main.list.selected, 1);
}

TEST_F(InputTest, WhatIsClosedTakesNothing) {
  main.button.enabled = main.item.enabled = main.items.items[3].enabled = false;
  main.frame.enabled = false;
  main.check.visible = false;
  main.timer.enabled = false;
  const std::function<bool()> deeds[] = {
      [&] { return input.Click(main.button); },
      [&] { return input.Choose(main.option[0]); },
      [&] { return input.Toggle(main.check); },
      [&] { return input.ChooseMenu(main.item); },
      [&] { return input.ChooseMenu(main.items, 3); },
      [&] { return input.ChooseMenu(main.items, 4); },
      [&] { return input.Type(main.box[1], "1"); },
      [&] { return input.Key(main.box[1], keys::kEnter); },
      [&] { return input.Pick(main.combo, 2); },
      [&] { return input.Pick(main.combo, -1); },
      [&] { return input.SelectRow(main.list, 2, MouseButton::Left); },
      [&] { return input.SelectRow(main.list, 0, MouseButton::Left); },
      [&] { return input.Tick(main.timer); },
      [&] { return input.Click(side.button); },
      [&] { return input.Close(side); }};
  for (const auto& deed : deeds) EXPECT_FALSE(deed()) << &deed - deeds;
  main.menu.enabled = false;
  main.item.enabled = true;
  EXPECT_FALSE(input.ChooseMenu(main.item));
  EXPECT_EQ(Heard(), "");
  EXPECT_EQ(Chosen(main.option), -1);
}

TEST_F(InputTest, TabIsAKeyBeforeTheFocusMoves) {
  EXPECT_TRUE(input.Tab(main.box[0], true));
  EXPECT_EQ(Heard(), "box0.KeyUp box0.Lost box2.Got ");
  EXPECT_TRUE(input.Tab(main.box[2], false));
  EXPECT_EQ(Heard(), "box2.Lost box0.Got ");
  events.On(main.box[0], Event::KeyUp, [this](EventArgs&) { desk.SetFocus(main.list); });
  EXPECT_TRUE(input.Tab(main.box[0], true));
  EXPECT_EQ(Heard(), "box0.Lost list.Got ");  // where its handler put it
}

TEST_F(InputTest, EnterAndEscapePressWhatTakesThemOrCloseTheWindow) {
  main.button.shortcut = kEnterShortcut;
  main.label.shortcut = kEscapeShortcut;
  EXPECT_TRUE(input.Key(main.box[0], keys::kEnter));
  EXPECT_EQ(Heard(), "box0.KeyUp button.Click ");
  EXPECT_TRUE(input.Key(main, keys::kEscape));
  EXPECT_EQ(Heard(), "label.Click label.MouseUp ");
  main.box[0].multiLine = true;
  EXPECT_TRUE(input.Key(main.box[0], keys::kEnter));
  EXPECT_EQ(Heard(), "box0.KeyUp ");
  main.button.enabled = main.label.enabled = false;
  EXPECT_FALSE(input.Key(main, keys::kEnter));
  EXPECT_FALSE(input.Key(main, keys::kEscape));  // nor does the window close
  EXPECT_TRUE(desk.IsShown(main));

  desk.Show(side);
  Heard();
  EXPECT_TRUE(input.Key(side.button, keys::kEnter));  // the button that has the focus
  EXPECT_EQ(Heard(), "side.button.KeyUp side.box.Lost side.button.Got side.button.Click ");
  side.closesByEscape = false;
  input.Key(side.box, keys::kEscape);
  EXPECT_TRUE(desk.IsShown(side));
  side.closesByEscape = true;
  input.Key(side.box, keys::kEscape);
  EXPECT_FALSE(desk.IsShown(side));
}

TEST_F(InputTest, TheKeyFilterSeesEachCharacterAsAByte) {
  EXPECT_TRUE(input.Accepts(main.box[0], 'x'));
  events.On(main.box[0], Event::KeyPress, [](EventArgs& args) {
    if (args.key != 0xE9) args.key = 0;
  });
  EXPECT_TRUE(input.Accepts(main.box[0], '\xE9'));
  EXPECT_FALSE(input.Accepts(main.box[0], '-'));
}

TEST_F(InputTest, AnErrorIsToldOnceAndTheProgramGoesOn) {
  std::string told;
  input.onError = [&](const RuntimeError& error) { told += error.what(); };
  events.On(main.button, Event::Click, [this](EventArgs&) {
    heard += input.Click(main.label) ? "twice" : "";  // while it is busy nothing else is taken
    throw RuntimeError("broken");
  });
  EXPECT_TRUE(input.Click(main.button));
  EXPECT_EQ(told, "broken");
  EXPECT_EQ(Heard(), "box0.Lost button.Got ");
  EXPECT_TRUE(input.Click(main.label));
}

}  // namespace
}  // namespace benevix
