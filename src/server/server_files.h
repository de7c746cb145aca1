#pragma once

#include <optional>
#include <string>

#include "core/run_values.h"
#include "forms/frmBVX.h"
#include "platform/environment.h"
#include "session/session_values.h"

namespace benevix {

// Fetches files from the server, and reads the small ones that several modules use.
class ServerFiles {
 public:
  ServerFiles(Environment& environment, frmBVX& main, FeeRates& rates, RunValues& run)
      : environment_(environment), main_(main), rates_(rates), run_(run) {}

  // The server base address, which ends in "/".
  [[nodiscard]] const std::string& Base() const { return environment_.info.deployment.serverBase; }

  // Fetches the base address followed by `path`. Raises RuntimeError when no answer comes.
  std::string FetchServerText(const std::string& path, HttpOptions options = {});

  // The same for a small file, but empty if there is no answer or it is an error page (one with
  // "<").
  std::string FetchUsable(const std::string& path);

  // Sets and returns ServerOK: whether the status file is exactly "server ok".
  bool CheckServerStatus();

  struct ContactData {
    std::string script;     // path of the mail script
    std::string recipient;  // who gets the notices
  };
  // Nothing if the file is missing or has no comma.
  std::optional<ContactData> GetContactData();

  // Reads the fee rates; after an error the values read so far are kept.
  void LoadFeeRates();

 private:
  Environment& environment_;
  frmBVX& main_;
  FeeRates& rates_;
  RunValues& run_;
};

// Whether an answer counts: it is not empty and no error page.
bool IsUsable(const std::string& answer);

}  // namespace benevix
