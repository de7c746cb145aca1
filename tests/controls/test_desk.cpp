#include <gtest/gtest.h>

#include "windows_of_a_test.h"

namespace benevix {
namespace {

class DeskTest : public testing::Test, public DeskOfATest {};

TEST_F(DeskTest, UnloadGoesBackToTheDesignAndHideDoesNot) {
  desk.Load(side);
  desk.Show(side);
  EXPECT_EQ(Heard(), "side.Load side.box.Got ");
  side.box.Write("text");
  side.caption = "caption";
  desk.Hide(side);
  EXPECT_FALSE(desk.IsShown(side));
  EXPECT_EQ(side.box.text, "text");
  desk.Show(side);
  EXPECT_EQ(Heard(), "");
  EXPECT_EQ(desk.FocusOf(side), &side.box);
  events.On(side, Event::Unload, [this](EventArgs&) {
    heard += side.box.text;
    desk.Unload(side);  // from within: nothing more happens
  });
  desk.Unload(side);
  desk.Unload(side);
  EXPECT_EQ(Heard(), "text");
  EXPECT_EQ(side.box.text, "");
  EXPECT_EQ(side.box.toolTip, "tip");
  EXPECT_EQ(side.caption, "");
  EXPECT_EQ(desk.FocusOf(side), nullptr);
  EXPECT_FALSE(desk.IsLoaded(side));
  desk.Show(side);
  EXPECT_EQ(desk.Find(side).loads, 2);
}

TEST_F(DeskTest, AWindowThatItsLoadTakesAwayIsNotShown) {
  events.On(side, Event::Load, [this](EventArgs&) { desk.Unload(side); });
  desk.Show(side, Modality::Modal, Attention::KeepsMainDisabled);
  EXPECT_FALSE(desk.IsShown(side));
  EXPECT_TRUE(desk.IsEnabled(main));
}

TEST_F(DeskTest, ModalAndAttentionHoldTheMainWindowUp) {
  desk.Show(main);
  EXPECT_TRUE(desk.IsUsable(main));
  desk.Show(side, Modality::Modal);
  EXPECT_TRUE(desk.IsEnabled(main));
  EXPECT_FALSE(desk.IsUsable(main));
  EXPECT_TRUE(desk.IsUsable(side));
  desk.Hide(side);
  EXPECT_TRUE(desk.IsUsable(main));
  desk.Show(side);  // a modal mark does not outlive its showing
  EXPECT_TRUE(desk.IsUsable(main));
  desk.Show(side, Modality::Modeless, Attention::KeepsMainDisabled);
  desk.Show(side);  // asked for again while it stands: still kept
  EXPECT_FALSE(desk.IsEnabled(main));
  EXPECT_FALSE(input.Close(main));
  EXPECT_FALSE(input.Click(main.label));
  EXPECT_TRUE(input.Close(side));
  EXPECT_TRUE(desk.IsUsable(main));
}

TEST_F(DeskTest, FocusMovesWithItsEventsAndStaysOffWhatIsClosed) {
  desk.Show(main);
  EXPECT_EQ(Heard(), "box0.Got ");
  desk.SetFocus(main.check);
  EXPECT_EQ(Heard(), "box0.Lost check.Got ");
  desk.SetFocus(main.check);
  desk.SetFocus(main.box[1]);  // disabled
  main.frame.enabled = false;
  desk.SetFocus(main.option[0]);  // its holder is
  main.button.visible = false;
  desk.SetFocus(main.button);
  EXPECT_EQ(Heard(), "");
  EXPECT_EQ(desk.FocusOf(main), &main.check);
  main.check.enabled = false;
  desk.Settle();  // lost without a word
  EXPECT_EQ(Heard(), "");
  EXPECT_EQ(desk.FocusOf(main), nullptr);
  // A handler that moves the focus on: what it passes over never hears that it had it.
  desk.SetFocus(main.box[0]);
  events.On(main.box[0], Event::LostFocus, [this](EventArgs&) { desk.SetFocus(main.box[2]); });
  Heard();
  desk.SetFocus(main.combo);
  EXPECT_EQ(Heard().find("combo.Got"), std::string::npos);
  EXPECT_EQ(desk.FocusOf(main), &main.box[2]);
}

TEST_F(DeskTest, TabStopsAreOneForAGroupOfOptions) {
  desk.Show(main);
  const auto way = [this](bool forward) {
    std::string names;
    for (int i = 0; i < 7; ++i) {
      desk.MoveFocus(desk.Find(main), forward);
      for (const NamedControl& control : desk.Find(main).controls) {
        if (&control.Base() == desk.FocusOf(main)) {
          names += control.name + (control.index < 0 ? "" : std::to_string(control.index)) + " ";
        }
      }
    }
    return names;
  };
  EXPECT_EQ(way(true), "box2 option0 check combo list button box0 ");
  Choose(main.option, 1);
  EXPECT_EQ(way(true), "box2 option1 check combo list button box0 ");
  EXPECT_EQ(way(false), "button list combo check option1 box2 box0 ");
  main.frame.visible = false;
  main.list.enabled = false;
  EXPECT_EQ(way(true), "box2 check combo button box0 box2 check ");
  for (TextBox& box : main.box) box.enabled = false;
  main.check.enabled = main.combo.enabled = main.button.enabled = false;
  desk.ClearFocus(main);
  EXPECT_EQ(way(true), "");
}

TEST_F(DeskTest, EndStopsTheHandlerAndAllInput) {
  desk.Show(main);
  events.On(main.button, Event::Click, [this](EventArgs&) {
    desk.End();
    heard += "never";
  });
  bool settled = false;
  input.afterEvent = [&] { settled = true; };
  Heard();
  EXPECT_TRUE(input.Click(main.button));
  EXPECT_TRUE(settled);
  EXPECT_TRUE(desk.Ended());
  EXPECT_FALSE(input.Click(main.label));
  EXPECT_FALSE(input.Close(main));
  bool entered = false;
  input.Enter([&] { entered = true; });
  EXPECT_FALSE(entered);
}

}  // namespace
}  // namespace benevix
