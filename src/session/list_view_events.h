#pragma once

#include <functional>

#include "controls/desk.h"
#include "controls/events.h"
#include "core/run_values.h"
#include "forms/frmBVX.h"
#include "session/session_values.h"

namespace benevix {

// Selecting rows of the organization list, and what follows from it.
class ListViewEvents {
 public:
  // `showYtd` shows the year-to-date figures of the selected row.
  ListViewEvents(frmBVX& main, const SessionValues& values, Desk& desk, const RunValues& run,
                 std::function<void()> showYtd)
      : main_(main), values_(values), desk_(desk), run_(run), showYtd_(std::move(showYtd)) {}

  void ListView1_ItemClick(const EventArgs& args);
  // Enter moves the focus to the Donation box, or without a Budget to the Budget box.
  void ListView1_KeyUp(const EventArgs& args);

  // Selects a row as the arrow keys do.
  void SelectByKeyboard(int row);
  // Scrolls a row into view and selects it: by keyboard as the arrow keys do, otherwise as a left
  // click, with its change of focus.
  void Select(int row, bool byKeyboard);

  // The countries menu: scrolls to the country's first heading and selects it.
  void lclist_Click(int index);

 private:
  void LeftClick(bool organization, bool byKeyboard);

  frmBVX& main_;
  const SessionValues& values_;
  Desk& desk_;
  const RunValues& run_;
  std::function<void()> showYtd_;
};

}  // namespace benevix
