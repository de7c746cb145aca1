#pragma once

#include <string>

#include "core/messages.h"
#include "database/organization_database.h"
#include "forms/frmBVX.h"
#include "platform/files.h"
#include "server/list_update.h"
#include "session/favorites.h"
#include "session/session_values.h"

namespace benevix {

// The command "Update List": asks first if a session would be lost. What no message tells stands in
// the hint line: what a downloaded list changes, and why none could be downloaded.
class ListUpdateCommand {
 public:
  ListUpdateCommand(ListUpdate& update, frmBVX& main, const SessionValues& values,
                    Messages& messages, const OrganizationDatabase& database,
                    const Favorites& favorites, const Files& files)
      : update_(update),
        main_(main),
        values_(values),
        messages_(messages),
        database_(database),
        favorites_(favorites),
        files_(files) {}

  // Of the link "Update List", and of the menu item.
  void Label11_MouseUp();

 private:
  // Returns what is to be told in the hint line, or empty.
  [[nodiscard]] std::string Check();
  [[nodiscard]] std::string Changes() const;

  ListUpdate& update_;
  frmBVX& main_;
  const SessionValues& values_;
  Messages& messages_;
  const OrganizationDatabase& database_;
  const Favorites& favorites_;
  const Files& files_;
};

}  // namespace benevix
