#pragma once

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
  ListFilter(frmBVX& main, const OrganizationDatabase& database, Desk& desk)
      : main_(main), database_(database), desk_(desk) {}

  // Escape empties the box and goes back to the list.
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
  void ShowRows();
  [[nodiscard]] ShownRows GivenRows() const;

  frmBVX& main_;
  const OrganizationDatabase& database_;
  Desk& desk_;
  Basis basis_;
  int selected_ = 0, scrolls_ = 0;  // of the list after the last event
};

}  // namespace benevix
