#include <gtest/gtest.h>

#include "two_windows.h"

namespace benevix {
namespace {

class DeskTest : public testing::Test, public TwoWindows {};

TEST_F(DeskTest, UnloadGoesBackToTheDesignAndHideDoesNot) {
  events.On(side, Event::Unload, [this](EventArgs&) {
    raised += side.text.text;
    desk.Unload(side);  // from its own handler: changes nothing
  });
  desk.Show(side);
  side.text.Write("kept");
  desk.Hide(side);
  desk.Show(side);
  EXPECT_EQ(Raised(), "text.Got ");
  EXPECT_EQ(side.text.text, "kept");
  desk.Unload(side);
  desk.Unload(side);
  EXPECT_EQ(Raised(), "kept");
  EXPECT_EQ(side.text.text + side.text.toolTip, "tip");
  EXPECT_EQ(desk.FocusOf(side), nullptr);
  events.On(side, Event::Load, [this](EventArgs&) { desk.Unload(side); });
  desk.Show(side, Modality::Modal, Attention::KeepsMainDisabled);
  EXPECT_FALSE(desk.IsShown(side));
  EXPECT_TRUE(desk.IsUsable(main));
}

TEST_F(DeskTest, AModalWindowAndOneThatKeepsTheAttentionDisableTheMainWindow) {
  desk.Show(side, Modality::Modal);
  EXPECT_TRUE(desk.IsEnabled(main) && desk.IsUsable(side));
  EXPECT_FALSE(desk.IsUsable(main));
  desk.Hide(side);
  desk.Show(side);  // a modal mark does not outlive its showing
  EXPECT_TRUE(desk.IsUsable(main));
  desk.Show(side, Modality::Modeless, Attention::KeepsMainDisabled);
  desk.Show(side);  // again while it is shown: the mark stays
  EXPECT_FALSE(desk.IsEnabled(main) || input.Close(main) || input.Click(main.label));
  EXPECT_TRUE(input.Close(side));
  EXPECT_TRUE(desk.IsUsable(main));
}

TEST_F(DeskTest, FocusMovesWithItsEventsAndStaysOffWhatIsClosed) {
  desk.SetFocus(main.check);
  EXPECT_EQ(Raised(), "box0.Lost check.Got ");
  main.frame.enabled = main.button.visible = false;
  for (Control* closed :
       {static_cast<Control*>(&main.check), static_cast<Control*>(&main.box[1]),
        static_cast<Control*>(&main.option[0]), static_cast<Control*>(&main.button)}) {
    desk.SetFocus(*closed);  // the first one has it
  }
  EXPECT_EQ(desk.FocusOf(main), &main.check);
  main.check.enabled = false;
  desk.Settle();  // lost without an event
  EXPECT_EQ(Raised(), "");
  EXPECT_EQ(desk.FocusOf(main), nullptr);
  // A handler moves the focus on: the control that it was on its way to gets no event.
  desk.SetFocus(main.box[0]);
  events.On(main.box[0], Event::LostFocus, [this](EventArgs&) { desk.SetFocus(main.box[2]); });
  Raised();
  desk.SetFocus(main.list);
  EXPECT_EQ(Raised().find("list.Got"), std::string::npos);
  EXPECT_EQ(desk.FocusOf(main), &main.box[2]);
}

TEST_F(DeskTest, TabStopsAreOneForAGroupOfOptions) {
  const auto way = [this](bool forward) {
    for (int i = 0; i < 6; ++i) desk.MoveFocus(desk.Find(main), forward);
    std::string got;
    for (std::size_t end = 0; (end = raised.find(".Got ", end)) != std::string::npos; ++end) {
      got += raised.substr(raised.rfind(' ', end) + 1, end - raised.rfind(' ', end));
    }
    Raised();
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
