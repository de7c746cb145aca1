#pragma once

#include <functional>

#include "controls/desk.h"
#include "controls/events.h"
#include "core/run_values.h"
#include "forms/frmBVX.h"

namespace benevix {

// What a click on a row of the organization list does.
class ListViewEvents {
 public:
  // `showYtd` shows the year-to-date figures of the selected row.
  ListViewEvents(frmBVX& main, Desk& desk, const RunValues& run, std::function<void()> showYtd)
      : main_(main), desk_(desk), run_(run), showYtd_(std::move(showYtd)) {}

  void ListView1_ItemClick(const EventArgs& args);
  // Enter goes on to the box in which the next amount is typed.
  void ListView1_KeyUp(const EventArgs& args);

  // Selects a row as the arrow keys do.
  void GoTo(int row);
  // Scrolls a row into view and selects it, with what follows from a selected row; by the mouse
  // also with what follows from a click.
  void Select(int row, bool byKeyboard);

  // A country of the countries menu: its first heading is scrolled into view and selected.
  void lclist_Click(int index);

 private:
  void EnableOrganizationCommands(bool enabled);
  void LeftClick(bool organization, bool byKeyboard);

  frmBVX& main_;
  Desk& desk_;
  const RunValues& run_;
  std::function<void()> showYtd_;
};

}  // namespace benevix
