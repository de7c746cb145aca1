#pragma once

#include <string>

#include "controls/events.h"
#include "database/organization_database.h"
#include "forms/frmBVX.h"
#include "platform/clock.h"
#include "session/list_view_events.h"

namespace benevix {

// Type-ahead in the list: selects the next organization whose name begins with the typed letters.
class ListTyping {
 public:
  ListTyping(const frmBVX& main, const OrganizationDatabase& database, const Clock& clock,
             ListViewEvents& listView)
      : main_(main), database_(database), clock_(clock), listView_(listView) {}

  // Letters typed within a second of each other form a word; repeating one letter steps through the
  // organizations.
  void ListView1_KeyPress(const EventArgs& args);

 private:
  // Among the rows that are shown; 0 without one.
  [[nodiscard]] int FindShown(const OrganizationList& list, const std::string& word,
                              int from) const;

  const frmBVX& main_;
  const OrganizationDatabase& database_;
  const Clock& clock_;
  ListViewEvents& listView_;
  std::string typed_;
  DateTime lastKeyTime_;
};

}  // namespace benevix
