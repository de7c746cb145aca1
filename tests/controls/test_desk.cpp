#include <gtest/gtest.h>

#include "windows_of_a_test.h"

namespace benevix {
namespace {

class DeskTest : public testing::Test, public DeskOfATest {};

TEST_F(DeskTest, UnloadGoesBackToTheDesignAndHideDoesNot) {
  events.On(side, Event::Unload, [this](EventArgs&) {
    heard += side.text.text;
    desk.Unload(side);  // from within: nothing more happens
  });
  desk.Show(side);
  side.text.Write("kept");
  desk.Hide(side);
  desk.Show(side);
  EXPECT_EQ(Heard(), "text.Got ");
  EXPECT_EQ(side.text.text, "kept");
  desk.Unload(side);
  desk.Unload(side);
  EXPECT_EQ(Heard(), "kept");
  EXPECT_EQ(side.text.text + side.text.toolTip, "tip");
  EXPECT_EQ(desk.FocusOf(side), nullptr);
  events.On(side, Event::Load, [this](EventArgs&) { desk.Unload(side); });
  desk.Show(side, Modality::Modal, Attention::KeepsMainDisabled);
  EXPECT_FALSE(desk.IsShown(side));
  EXPECT_TRUE(desk.IsUsable(main));
}

TEST_F(DeskTest, ModalAndAttentionHoldTheMainWindowUp) {
  desk.Show(side, Modality::Modal);
  EXPECT_TRUE(desk.IsEnabled(main) && desk.IsUsable(side));
  EXPECT_FALSE(desk.IsUsable(main));
  desk.Hide(side);
  desk.Show(side);  // a modal mark does not outlive its showing
  EXPECT_TRUE(desk.IsUsable(main));
  desk.Show(side, Modality::Modeless, Attention::KeepsMainDisabled);
  desk.Show(side);  // asked for again while it stands: still kept
  EXPECT_FALSE(desk.IsEnabled(main) || input.Close(main) || input.Click(main.label));
  EXPECT_TRUE(input.Close(side));
  EXPECT_TRUE(desk.IsUsable(main));
}

TEST_F(DeskTest, FocusMovesWithItsEventsAndStaysOffWhatIsClosed) {
  desk.SetFocus(main.check);
  EXPECT_EQ(Heard(), "box0.Lost check.Got ");
  main.frame.enabled = main.button.visible = false;
  for (Control* closed :
       {static_cast<Control*>(&main.check), static_cast<Control*>(&main.box[1]),
        static_cast<Control*>(&main.option[0]), static_cast<Control*>(&main.button)}) {
    desk.SetFocus(*closed);  // the first has it already
  }
  EXPECT_EQ(desk.FocusOf(main), &main.check);
  main.check.enabled = false;
  desk.Settle();  // lost without a word
  EXPECT_EQ(Heard(), "");
  EXPECT_EQ(desk.FocusOf(main), nullptr);
  // A handler that moves the focus on: what it passes over never hears that it had it.
  desk.SetFocus(main.box[0]);
  events.On(main.box[0], Event::LostFocus, [this](EventArgs&) { desk.SetFocus(main.box[2]); });
  Heard();
  desk.SetFocus(main.list);
  EXPECT_EQ(Heard().find("list.Got"), std::string::npos);
  EXPECT_EQ(desk.FocusOf(main), &main.box[2]);
}

TEST_F(DeskTest, TabStopsAreOneForAGroupOfOptions) {
  const auto way = [this](bool forward) {
    for (int i = 0; i < 6; ++i) desk.MoveFocus(desk.Find(main), forward);
    std::string got;
    for (std::size_t end = 0; (end = heard.find(".Got ", end)) != std::string::npos; ++end) {
      got += heard.substr(heard.rfind(' ', end) + 1, end - heard.rfind(' ', end));
    }
    Heard();
    return got;
  };
  EXPECT_EQ(way(true), "box2.option0.check.list.button.box0.");
  Choose(main.option, 1);
  EXPECT_EQ(way(true), "box2.option1.check.list.button.box0.");
  EXPECT_EQ(way(false), "button.list.check.option1.box2.box0.");
  main.frame.visible = main.list.enabled = false;
  EXPECT_EQ(way(true), "box2.check.button.box0.box2.check.");
}

}  // namespace
}  // namespace benevix
