#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/desk.h"
#include "core/settings_store.h"
#include "database/organization_database.h"
#include "forms/frmBVX.h"
#include "platform/program_info.h"
#include "session/session_values.h"

namespace benevix {

// Refills the list with the donations of the last finalized session, from the setting
// `LastSession`: the date, and six fields for each organization.
class LastSession {
 public:
  LastSession(frmBVX& main, SessionValues& values, Desk& desk, SettingsStore& settings,
              const OrganizationDatabase& database, const ProgramInfo& info)
      : main_(main),
        values_(values),
        desk_(desk),
        settings_(settings),
        database_(database),
        info_(info) {}

  void mnuRecallSession_Click();

 private:
  struct Record {
    std::string organization, amount, delivery, from, certificate, proof;
  };

  // Gives the recalled total. Raises RuntimeError for an amount beyond a currency, with the rows
  // before it refilled.
  Currency RefillRows(const std::vector<Record>& records);
  // A record's organization may stand in the list file as the first field of a line; then the
  // line's second field names it.
  void ReplaceByFile(std::vector<Record>& records) const;

  frmBVX& main_;
  SessionValues& values_;
  Desk& desk_;
  SettingsStore& settings_;
  const OrganizationDatabase& database_;
  const ProgramInfo& info_;
};

}  // namespace benevix
