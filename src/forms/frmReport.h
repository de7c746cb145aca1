#pragma once

#include "controls/controls.h"

namespace benevix {

namespace report_range {  // Option1
inline constexpr int kThisYear = 0;
inline constexpr int kLastYear = 1;
inline constexpr int kAll = 2;
inline constexpr int kFromTo = 3;
}  // namespace report_range

namespace report_button {  // Command1
inline constexpr int kGiveAgain = 0;
inline constexpr int kPrint = 1;
inline constexpr int kPdf = 2;
inline constexpr int kCsv = 3;
}  // namespace report_button

// What was given before.
struct frmReport : Window {
  static constexpr const char* kName = "frmReport";

  frmReport() {
    caption = kTitle;
    Option1[report_range::kThisYear].value = true;
    for (TextBox& box : Text1) box.takes = "A date: MM-DD-YYYY";
    Goal.takes = "Digits and a point only";
    Periods.holder = Shares.holder = Goal.holder = GoalUse.holder = "Content";
    Organizations.holder = Sessions.holder = Frame2.holder = "Content";
    Organizations.canBeSorted = true;
    Sessions.widest = 2;
    Empty.visible = false;
    Unread.visible = false;
    Told.visible = false;
    Command1[report_button::kPrint].shortcut = "Ctrl+P";
    Command1[report_button::kPdf].shortcut = "Ctrl+S";
  }

  static constexpr const char* kTitle = "BENEVIX - Giving Report";

  Frame Frame1{"Range"};
  OptionButton Option1[4] = {OptionButton("This year", {}, "Frame1"),
                             OptionButton("Last year", {}, "Frame1"),
                             OptionButton("All", {}, "Frame1"), OptionButton("From", {}, "Frame1")};
  Label Label1{"to", {}, "Frame1"};
  TextBox Text1[2] = {TextBox("The first day, MM-DD-YYYY"), TextBox("The last day, MM-DD-YYYY")};

  Label Empty;  // in the place of all that follows, while there is nothing to tell
  PictureBox Content;
  Label PeriodsTitle{"By month", {}, "Content"};
  Chart Periods{Chart::Kind::Columns};
  Label SharesTitle{"Largest organizations", {}, "Content"};
  Chart Shares{Chart::Kind::Shares};
  Label GoalTitle{"My goal", {}, "Content"};
  TextBox Goal{"What you want to give this year; empty for no goal"};
  MoneyBar GoalUse;

  Label OrganizationsTitle{"Organizations", {}, "Content"};
  Table Organizations{"Ctrl+1 to Ctrl+5 sort by a column",
                      {{"Organization", false, 40},
                       {"Gifts", true, 8},
                       {"Total", true, 10},
                       {"Last", false, 10},
                       {"Certificates", true, 4}}};
  Label Totals{"", {}, "Content"};
  Label NotKnown{"", {}, "Content"};  // how many sessions nobody knows to be paid
  Label SessionsTitle{"Sessions", {}, "Content"};
  Table Sessions{"A click, or Enter, shows a session's gifts",
                 {{"Date", false, 10},
                  {"Transaction", false, 17},
                  {"Organizations", false, 30},
                  {"Given", true, 9},
                  {"Fees", true, 7},
                  {"Paid", true, 9},
                  {"Method", false, 13},
                  {"State", false, 10}}};
  // Of the selected session.
  Frame Frame2{"State"};
  Label Label2{"The selected session was", {}, "Frame2"};
  OptionButton Option2[3] = {OptionButton("Paid", {}, "Frame2"),
                             OptionButton("Cancelled", {}, "Frame2"),
                             OptionButton("Not known", {}, "Frame2")};
  Label Unread;  // lines of the history that could not be read
  Label Told;    // what became of the last command
  Button Command1[4] = {Button("Give &Again", "Puts the selected session into the main window"),
                        Button("Print &Statement", "For your tax return"),
                        Button("Save as P&DF..."), Button("Save as &CSV...", "For a spreadsheet")};
};

template <class F>
void visit(frmReport& window, F&& f) {
  f("Frame1", window.Frame1);
  f("Option1", window.Option1);
  f("Text1", window.Text1);
  f("Label1", window.Label1);
  f("Empty", window.Empty);
  f("Content", window.Content);
  f("PeriodsTitle", window.PeriodsTitle);
  f("Periods", window.Periods);
  f("SharesTitle", window.SharesTitle);
  f("Shares", window.Shares);
  f("GoalTitle", window.GoalTitle);
  f("Goal", window.Goal);
  f("GoalUse", window.GoalUse);
  f("OrganizationsTitle", window.OrganizationsTitle);
  f("Organizations", window.Organizations);
  f("Totals", window.Totals);
  f("NotKnown", window.NotKnown);
  f("SessionsTitle", window.SessionsTitle);
  f("Sessions", window.Sessions);
  f("Frame2", window.Frame2);
  f("Label2", window.Label2);
  f("Option2", window.Option2);
  f("Unread", window.Unread);
  f("Told", window.Told);
  f("Command1", window.Command1);
}

}  // namespace benevix
