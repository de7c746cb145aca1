#pragma once

#include "controls/events.h"
#include "forms/frmBVX.h"
#include "session/budget_entry.h"
#include "session/donation_entry.h"

namespace benevix {

// The handlers of the main window that belong to no other module.
class MainWindow {
 public:
  MainWindow(frmBVX& main, const SessionValues& values, BudgetEntry& budget,
             DonationEntry& donation)
      : main_(main), values_(values), budget_(budget), donation_(donation) {}

  // Only digits, the point and Backspace can be typed into the three boxes.
  static void Text1_KeyPress(EventArgs& args);
  // An amount with a comma as its decimal sign is not taken at all.
  static void Text1_Paste(EventArgs& args);
  void Text1_KeyUp(int index, const EventArgs& args);
  void Text1_Change(int index);
  // Selects the text, so that typing replaces it.
  void Text1_GotFocus(int index);
  // What was typed but not entered gives way to the accepted Budget and the Balance; a first Budget
  // and a donation stay, since options are often chosen in between.
  void Text1_LostFocus(int index);

  // Scrolls the credit line in from the right; 200 ticks later it says thanks.
  void Timer1_Tick();
  // Blinks the news indicator.
  void Timer2_Tick();

 private:
  frmBVX& main_;
  const SessionValues& values_;
  BudgetEntry& budget_;
  DonationEntry& donation_;
};

// Where the credit line stops, in twips.
inline constexpr int kLabel4End = 120;

}  // namespace benevix
