#include "session/main_window.h"

#include <algorithm>

#include "base/number_text.h"
#include "session/typed_amount.h"

namespace benevix {

void MainWindow::Text1_KeyPress(EventArgs& args) {
  const bool digit = args.key >= '0' && args.key <= '9';
  if (!digit && args.key != '.' && args.key != keys::kBackspace) args.key = 0;
}

void MainWindow::Text1_Paste(EventArgs& args) {
  if (HasDecimalComma(args.pasted)) args.pasted = {};
}

void MainWindow::Text1_KeyUp(int index, const EventArgs& args) {
  if (args.key != keys::kEnter && args.key != keys::kTab) return;
  if (index == money_box::kBudget) budget_.Enter();
  if (index == money_box::kDonation) donation_.Enter();
}

void MainWindow::Text1_Change(int index) {
  if (index == money_box::kBudget) budget_.Text1_Change();
  if (index == money_box::kDonation) donation_.Text1_Change();
}

void MainWindow::Text1_GotFocus(int index) {
  ++main_.Text1[index].selections;
}

void MainWindow::Text1_LostFocus(int index) {
  TextBox& box = main_.Text1[index];
  const bool firstBudget = index == money_box::kBudget && values_.Budget == Currency();
  if (box.typed && index != money_box::kDonation && !firstBudget) {
    box.Write(box.lastWritten);
  }
}

void MainWindow::Timer1_Tick() {
  constexpr int step = 20;
  constexpr int ticksToThanks = 200;
  if (main_.Label4.left > kLabel4End) {
    main_.Label4.left = std::max(main_.Label4.left - step, kLabel4End);
    return;
  }
  const int ticks = ToInt32(Val(main_.Timer1.tag)) + 1;
  main_.Timer1.tag = std::to_string(ticks);
  if (ticks < ticksToThanks) return;
  main_.Timer1.enabled = false;
  main_.Label4.caption = " Thank you!";
}

void MainWindow::Timer2_Tick() {
  Shape& indicator = main_.Shape5;
  indicator.fillColor = indicator.fillColor == colors::kNewsLit ? colors::kOff : colors::kNewsLit;
}

}  // namespace benevix
