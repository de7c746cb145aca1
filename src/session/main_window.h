#pragma once

#include "controls/events.h"
#include "forms/frmBVX.h"
#include "session/budget_entry.h"
#include "session/donation_entry.h"

namespace benevix {

// The handlers of the main window that belong to no other room.
class MainWindow {
 public:
  MainWindow(frmBVX& main, BudgetEntry& budget, DonationEntry& donation)
      : main_(main), budget_(budget), donation_(donation) {}

  // Only digits, the point and Backspace can be typed into the three boxes.
  static void Text1_KeyPress(EventArgs& args);
  void Text1_KeyUp(int index, const EventArgs& args);
  void Text1_Change(int index);
  // So that typing replaces what the program wrote.
  void Text1_GotFocus(int index);

  // Scrolls the credit line in from the right, then counts to its thanks.
  void Timer1_Tick();
  // Blinks the news indicator.
  void Timer2_Tick();

 private:
  frmBVX& main_;
  BudgetEntry& budget_;
  DonationEntry& donation_;
};

// Where the credit line rests, twips.
inline constexpr int kLabel4Rest = 120;

}  // namespace benevix
