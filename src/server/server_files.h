#pragma once

#include <optional>
#include <string>

#include "core/run_values.h"
#include "forms/frmBVX.h"
#include "platform/surroundings.h"
#include "session/session_values.h"

namespace benevix {

// The one way files of the server are fetched, and the small files that more than one room reads.
class ServerFiles {
 public:
  ServerFiles(Surroundings& surroundings, frmBVX& main, RunValues& run)
      : surroundings_(surroundings), main_(main), run_(run) {}

  // The answer of the server base address followed by `path`; RuntimeError when none comes.
  std::string FetchServerText(const std::string& path, HttpOptions options = {});

  // An address that is built already, through the same control.
  std::string OpenURL(const std::string& address, HttpOptions options = {});

  // Empty when no usable answer comes: none at all, or an error page.
  std::string FetchUsable(const std::string& path);

  // ServerOK becomes true only when the status file answers "server ok" exactly.
  void CheckServerStatus();

  struct ContactData {
    std::string script;     // path of the mail script
    std::string recipient;  // who gets the notices
  };
  std::optional<ContactData> GetContactData();

  // Reads the fee rates; an error ends it with the values read so far.
  void LoadFeeRates(FeeRates& rates);

 private:
  Surroundings& surroundings_;
  frmBVX& main_;
  RunValues& run_;
};

}  // namespace benevix
