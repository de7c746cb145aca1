#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "core/messages.h"
#include "core/run_values.h"
#include "platform/environment.h"
#include "server/downloads.h"
#include "server/server_files.h"

namespace benevix {

// What came of a check for a newer list.
struct ListCheck {
  bool downloaded = false;
  std::string brokeOff;  // why the check could not go on, or empty
};

// Replaces the organization list with a newer one from the server.
class ListUpdate {
 public:
  ListUpdate(Environment& environment, ServerFiles& server, Messages& messages,
             const RunValues& run, Downloads& downloads)
      : environment_(environment),
        server_(server),
        messages_(messages),
        run_(run),
        downloads_(downloads) {}

  // The lock around checking and installing: null when another copy of the program has it, whose
  // check is not to be disturbed. Raises RuntimeError.
  [[nodiscard]] std::unique_ptr<FolderLock> Lock(std::chrono::milliseconds patience = {});

  // Compares the server's version with DBVersion; with `download`, a fixed parameter that every
  // caller sets, downloads a newer list into the temporary file. `ready` becomes true when it can
  // be installed now, which only a silent check reports; otherwise the next start installs it.
  ListCheck CheckListUpdate(bool silent, bool download, bool& ready);

  // The downloaded list that waits for its installation.
  [[nodiscard]] FilePath Downloaded() const;

  // Installs the temporary file and deletes it; false if it is no list file, or a list that could
  // not be loaded. Raises RuntimeError. Whenever it is interrupted, the old list or the new one is
  // there in full.
  bool InstallList();
  // The same, but under the name from which the list is loaded.
  bool ReinstallList();

 private:
  [[nodiscard]] bool IsInstallable() const;

  Environment& environment_;
  ServerFiles& server_;
  Messages& messages_;
  const RunValues& run_;
  Downloads& downloads_;
};

}  // namespace benevix
