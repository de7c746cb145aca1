#pragma once

#include <string>

#include "controls/events.h"
#include "database/organization_database.h"
#include "forms/frmBVX.h"
#include "platform/clock.h"
#include "session/list_view_events.h"

namespace benevix {

// Letters typed in the list go to the next organization whose name begins with them.
class ListTyping {
 public:
  ListTyping(const frmBVX& main, const OrganizationDatabase& database, const Clock& clock,
             ListViewEvents& listView)
      : main_(main), database_(database), clock_(clock), listView_(listView) {}

  // Letters within a second of the one before belong together; one letter again and again goes
  // from organization to organization.
  void ListView1_KeyPress(const EventArgs& args);

 private:
  const frmBVX& main_;
  const OrganizationDatabase& database_;
  const Clock& clock_;
  ListViewEvents& listView_;
  std::string typed_;
  DateTime last_;
};

}  // namespace benevix
