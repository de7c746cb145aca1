#pragma once

#include <functional>
#include <string>

#include "controls/desk.h"
#include "controls/events.h"
#include "database/organization_database.h"
#include "forms/frmBVX.h"

namespace benevix {

// Which rows of the list are shown: those with the words of the filter box, or those with a
// donation. It follows from the controls and the list after each event.
class ListFilter {
 public:
  // `select` selects a row as the arrow keys do.
  ListFilter(frmBVX& main, const OrganizationDatabase& database, Desk& desk,
             std::function<void(int row)> select)
      : main_(main), database_(database), desk_(desk), select_(std::move(select)) {}

  // What is typed then replaces what was typed before.
  void Filter_GotFocus() { ++main_.Filter.selections; }
  // Escape empties the box and goes back to the list. Enter and the arrow down go on to what was
  // found.
  void Filter_KeyUp(const EventArgs& args);
  void ShowAll_Click();

  // Shows the rows. A row that the program has selected or scrolled to meanwhile, and that would be
  // hidden, empties the filter.
  void AfterEvent();

 private:
  // What the shown rows follow from.
  struct Basis {
    std::string text;
    int onlyGiven = 0;
    int loads = 0;
    int changes = 0;  // counts only where it matters
    friend bool operator==(const Basis&, const Basis&) = default;
  };

  void Empty();
  // To the selected row, or where that is hidden to the first organization that is shown.
  void GoToFound();
  void ShowRows();
  [[nodiscard]] ShownRows GivenRows() const;

  frmBVX& main_;
  const OrganizationDatabase& database_;
  Desk& desk_;
  std::function<void(int)> select_;
  Basis basis_;
  int selected_ = 0, scrolls_ = 0;  // of the list after the last event
};

}  // namespace benevix
