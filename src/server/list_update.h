#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "core/messages.h"
#include "core/run_values.h"
#include "core/wait_notice.h"
#include "platform/environment.h"
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
             const RunValues& run, WaitWindow wait)
      : environment_(environment), server_(server), messages_(messages), run_(run), wait_(wait) {}

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

  // Downloads and starts the updater; true if the program must end for it. An answer that is empty,
  // a web page or of another status than 200 is not saved or started, but reported with message 8.
  // Raises RuntimeError if the file cannot be written or started.
  bool DownloadUpdater();

 private:
  [[nodiscard]] bool IsInstallable() const;
  // Fetches a large file while the please-wait window shows the progress.
  [[nodiscard]] std::string Download(const std::string& path, HttpOptions options);

  Environment& environment_;
  ServerFiles& server_;
  Messages& messages_;
  const RunValues& run_;
  WaitWindow wait_;
};

}  // namespace benevix
