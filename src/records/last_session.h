#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "controls/desk.h"
#include "core/settings_store.h"
#include "database/organization_database.h"
#include "forms/frmBVX.h"
#include "platform/environment.h"
#include "session/options_record.h"
#include "session/session_values.h"

namespace benevix {

// The last session that was sent, stored in the setting `LastSession` as its date and then "," and
// the options record of each organization.
class LastSession {
 public:
  LastSession(frmBVX& main, SessionValues& values, Desk& desk, SettingsStore& settings,
              const OrganizationDatabase& database, Environment& environment)
      : main_(main),
        values_(values),
        desk_(desk),
        settings_(settings),
        database_(database),
        environment_(environment) {}

  // Stores today's date and `records`, which is "," and the options record of each organization.
  void Remember(const std::string& records);

  // Puts its donations back into the list.
  void mnuRecallSession_Click();

 private:
  // Returns the recalled total. Raises RuntimeError when the list file cannot be read, or for an
  // amount beyond a currency, with the rows before it refilled.
  Currency RefillRows(const std::vector<OptionsRecord>& records);
  // The names of IDs that are the first field of a line of the list file: the line's second field.
  [[nodiscard]] std::map<std::string, std::string> NamesInFile(
      const std::set<std::string>& ids) const;

  frmBVX& main_;
  SessionValues& values_;
  Desk& desk_;
  SettingsStore& settings_;
  const OrganizationDatabase& database_;
  Environment& environment_;
};

}  // namespace benevix
