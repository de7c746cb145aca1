#include <gtest/gtest.h>

#include "two_windows.h"

namespace benevix {
namespace {

class InputTest : public testing::Test, public TwoWindows {};

TEST_F(InputTest, RaisesTheEventsOfEachAction) {
  EXPECT_TRUE(input.Choose(main.option[1]));
  EXPECT_EQ(Raised(), "box0.Lost option1.Got option1.Click option1.Up ");
  EXPECT_TRUE(input.Choose(main.option[1]));  // chosen already
  EXPECT_EQ(Raised(), "option1.Up ");
  EXPECT_EQ(Chosen(main.option), 1);
  EXPECT_TRUE(input.Toggle(main.check));
  EXPECT_EQ(Raised(), "option1.Lost check.Got check.Click check.Up ");
  EXPECT_TRUE(input.ChooseMenu(main.item));  // its menu is closed
  EXPECT_TRUE(input.Leave(main.box[2]));
  EXPECT_EQ(Raised(), "item.Click check.Lost box2.Got box2.Lost ");
}

TEST_F(InputTest, ControlsThatCannotBeUsedTakeNoAction) {
  main.button.enabled = main.frame.enabled = main.check.visible = main.menu.enabled = false;
  EXPECT_FALSE(input.Click(main.button));
  EXPECT_FALSE(input.Choose(main.option[0]));
  EXPECT_FALSE(input.Toggle(main.check));
  EXPECT_FALSE(input.ChooseMenu(main.item));
  EXPECT_FALSE(input.ChooseMenu(main.items, 3));  // there is none
  EXPECT_FALSE(input.Type(main.box[1], "1"));
  EXPECT_FALSE(input.Key(main.box[1], keys::kEnter));
  EXPECT_FALSE(input.SelectRow(main.list, 1, MouseButton::Left));  // there is none
  EXPECT_FALSE(input.Type(side.text, "1"));                        // not shown
  EXPECT_FALSE(input.Close(side));
  EXPECT_EQ(Raised(), "");
}

TEST_F(InputTest, TabRaisesItsKeyBeforeTheFocusMoves) {
  input.Tab(main.box[0], true);
  EXPECT_EQ(Raised(), "box0.Key box0.Lost box2.Got ");
  input.Tab(main.box[2], false);
  EXPECT_EQ(Raised(), "box2.Lost box0.Got ");
  events.On(main.box[0], Event::KeyUp, [this](EventArgs&) { desk.SetFocus(main.list); });
  input.Tab(main.box[0], true);
  EXPECT_EQ(Raised(), "box0.Lost list.Got ");  // where its handler put it
}

TEST_F(InputTest, EnterAndEscapePressTheControlsWithTheseShortcutsOrCloseTheWindow) {
  main.button.shortcut = kEnterShortcut;
  main.label.shortcut = kEscapeShortcut;
  EXPECT_TRUE(input.Key(main.box[0], keys::kEnter));
  EXPECT_EQ(Raised(), "box0.Key button.Click ");
  EXPECT_TRUE(input.Key(main, keys::kEscape));
  EXPECT_EQ(Raised(), "label.Click label.Up ");
  main.box[0].multiLine = true;
  EXPECT_TRUE(input.Key(main.box[0], keys::kEnter));
  EXPECT_EQ(Raised(), "box0.Key ");
  main.button.enabled = main.label.enabled = false;
  EXPECT_FALSE(input.Key(main, keys::kEnter));
  EXPECT_FALSE(input.Key(main, keys::kEscape));  // nor does the window close
  EXPECT_TRUE(desk.IsShown(main));

  desk.Show(side);
  Raised();
  EXPECT_TRUE(input.Key(side.ok, keys::kEnter));  // the button that has the focus
  EXPECT_EQ(Raised(), "ok.Key text.Lost ok.Got ok.Click ");
  side.closesByEscape = false;
  input.Key(side.text, keys::kEscape);
  EXPECT_TRUE(desk.IsShown(side));
  side.closesByEscape = true;
  input.Key(side.text, keys::kEscape);
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

TEST_F(InputTest, ErrorsAreReportedAndNothingIsTakenAfterTheEnd) {
  std::string errors;
  input.onError = [&](const RuntimeError& error) { errors += error.what(); };
  events.On(main.label, Event::Click, [this](EventArgs&) {
    raised += input.Click(main.button) ? "twice" : "";  // no action within another
    throw RuntimeError("broken");
  });
  input.Click(main.label);
  EXPECT_EQ(errors + Raised(), "broken");
  events.On(main.button, Event::Click, [this](EventArgs&) { desk.End(); });
  input.Click(main.button);
  EXPECT_TRUE(desk.Ended());
  EXPECT_FALSE(input.Click(main.label) || input.Close(main));
  EXPECT_EQ(errors, "broken");
}

}  // namespace
}  // namespace benevix
