#pragma once

#include <functional>
#include <string>

#include "controls/desk.h"
#include "core/messages.h"
#include "core/run_values.h"
#include "forms/frmWait.h"
#include "platform/surroundings.h"

namespace benevix {

// Replaces the organization list by a newer one of the server.
class ListUpdate {
 public:
  ListUpdate(Surroundings& surroundings, ServerFetch fetch, Messages& messages,
             const RunValues& run, frmWait& wait, Desk& desk)
      : surroundings_(surroundings),
        fetch_(std::move(fetch)),
        messages_(messages),
        run_(run),
        wait_(wait),
        desk_(desk) {}

  // Compares the server's version with DBVersion and downloads a newer list into the temporary
  // file. `ready` becomes true when it may be installed at once, which only the silent check says.
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
  ServerFetch fetch_;
  Messages& messages_;
  const RunValues& run_;
  frmWait& wait_;
  Desk& desk_;
};

}  // namespace benevix
