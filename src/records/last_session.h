#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "controls/desk.h"
#include "core/messages.h"
#include "core/settings_store.h"
#include "database/organization_database.h"
#include "forms/frmBVX.h"
#include "platform/environment.h"
#include "session/options_record.h"
#include "session/session_values.h"

namespace benevix {

// Gives again what was given before: the last session that was sent, which is stored in the setting
// `LastSession` as its date and then "," and the options record of each organization.
class LastSession {
 public:
  // `newSession` puts the session that is going on away.
  LastSession(frmBVX& main, SessionValues& values, const FeeRates& rates, Desk& desk,
              SettingsStore& settings, const OrganizationDatabase& database, Messages& messages,
              Environment& environment, std::function<void()> newSession)
      : main_(main),
        values_(values),
        rates_(rates),
        desk_(desk),
        settings_(settings),
        database_(database),
        messages_(messages),
        environment_(environment),
        newSession_(std::move(newSession)) {}

  // Stores today's date and `records`, which is "," and the options record of each organization.
  void Remember(const std::string& records);

  // Puts its donations back into the list, each with the service fee of its delivery, and scrolls
  // to the first. Asks before it replaces a session in which something has been given.
  // Returns the date of the session that was recalled; empty if none was.
  std::string mnuRecallSession_Click();

  // The same with an older session, which names its organizations in place of their IDs; those that
  // are not in the list are named in a message. Gives false when the session that is going on
  // stays.
  bool GiveAgain(const std::string& date, const std::vector<OptionsRecord>& records);

 private:
  // Rows of the list and the options records of their donations.
  using Donations = std::vector<std::pair<int, OptionsRecord>>;

  // Puts the session that is going on away, after a question when something has been given in it.
  bool Replace();
  // Found by ID or by name; what is not in the list is left out. Raises RuntimeError when the list
  // file cannot be read.
  [[nodiscard]] Donations FindRows(std::vector<OptionsRecord> records) const;
  // Makes them the session; without a word it stops at an amount beyond a currency, with the rows
  // before it refilled.
  void Refill(const Donations& donations);
  // The names of IDs that are the first field of a line of the list file: the line's second field.
  [[nodiscard]] std::map<std::string, std::string> NamesInFile(
      const std::set<std::string>& ids) const;

  frmBVX& main_;
  SessionValues& values_;
  const FeeRates& rates_;
  Desk& desk_;
  SettingsStore& settings_;
  const OrganizationDatabase& database_;
  Messages& messages_;
  Environment& environment_;
  std::function<void()> newSession_;
};

}  // namespace benevix
