#pragma once

#include <chrono>
#include <string>

#include "core/messages.h"
#include "core/run_values.h"
#include "database/organization_database.h"
#include "platform/environment.h"
#include "server/list_update.h"

namespace benevix {

// The organization list at the program's start: brought up to date without a word, loaded, and
// replaced when it cannot be used.
class ListAtStart {
 public:
  ListAtStart(ListUpdate& update, OrganizationDatabase& database, Environment& environment,
              Messages& messages, RunValues& run)
      : update_(update),
        database_(database),
        environment_(environment),
        messages_(messages),
        run_(run) {}

  // Installs a newer list of the server. Left out after any failure, and while another copy of the
  // program does the same.
  void Update();

  // Loads the list. One with a fault is fetched again from the server when that is up, or else
  // replaced by the installed one, and the user is told. Raises RuntimeError when no list can be
  // loaded.
  void Load();

 private:
  // Loads the list; what is wrong with it, or empty.
  [[nodiscard]] std::string Fault();
  [[nodiscard]] bool FetchAgain();
  [[nodiscard]] bool UseInstalled();

  ListUpdate& update_;
  OrganizationDatabase& database_;
  Environment& environment_;
  Messages& messages_;
  RunValues& run_;
  bool updated_ = false;
};

}  // namespace benevix
