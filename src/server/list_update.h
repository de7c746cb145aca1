#pragma once

#include <string>

#include "core/messages.h"
#include "core/run_values.h"
#include "core/wait_notice.h"
#include "platform/surroundings.h"
#include "server/server_files.h"

namespace benevix {

// Replaces the organization list by a newer one of the server.
class ListUpdate {
 public:
  ListUpdate(Surroundings& surroundings, ServerFiles& server, Messages& messages,
             const RunValues& run, WaitWindow wait)
      : surroundings_(surroundings), server_(server), messages_(messages), run_(run), wait_(wait) {}

  // Compares the server's version with DBVersion and downloads a newer list into the temporary
  // file. `ready` becomes true when it may be installed at once, which only the silent check says;
  // what a user's own check has downloaded waits for the next start. Without `download`, which
  // every caller sets, it only compares.
  void CheckListUpdate(bool silent, bool download, bool& ready);

  // Installs the temporary file and deletes it; false when it is no list file.
  bool InstallList();

  // Downloads the updater, starts it and gives true: the program then ends. An answer that is
  // empty, a web page or of another status than 200 is neither saved nor started: message 8.
  bool DownloadUpdater();

 private:
  // Fetches a long file while the please-wait window shows how far it is.
  [[nodiscard]] std::string Download(const std::string& path, HttpOptions options = {});

  Surroundings& surroundings_;
  ServerFiles& server_;
  Messages& messages_;
  const RunValues& run_;
  WaitWindow wait_;
};

}  // namespace benevix
