#pragma once

#include <optional>
#include <string>

#include "core/run_values.h"
#include "forms/frmBVX.h"
#include "platform/surroundings.h"
#include "session/session_values.h"

namespace benevix {

// The one way files of the server are fetched, and the small files that several modules read.
class ServerFiles {
 public:
  ServerFiles(Surroundings& surroundings, frmBVX& main, FeeRates& rates, RunValues& run)
      : surroundings_(surroundings), main_(main), rates_(rates), run_(run) {}

  // The server base address, which ends in "/".
  [[nodiscard]] const std::string& Base() const { return surroundings_.info.deployment.serverBase; }

  // The answer of the base address followed by `path`; RuntimeError when none comes.
  std::string FetchServerText(const std::string& path, HttpOptions options = {});

  // Empty when no usable answer comes: none at all, or an error page.
  std::string FetchUsable(const std::string& path);

  // ServerOK becomes true only when the status file answers "server ok" exactly; gives it.
  bool CheckServerStatus();

  struct ContactData {
    std::string script;     // path of the mail script
    std::string recipient;  // who gets the notices
  };
  std::optional<ContactData> GetContactData();

  // Reads the fee rates; an error ends it with the values read so far.
  void LoadFeeRates();

 private:
  Surroundings& surroundings_;
  frmBVX& main_;
  FeeRates& rates_;
  RunValues& run_;
};

}  // namespace benevix
