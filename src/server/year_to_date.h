#pragma once

#include <string>
#include <string_view>

#include "controls/desk.h"
#include "core/run_values.h"
#include "forms/frmBVX.h"
#include "forms/frmYtdTag.h"
#include "platform/surroundings.h"
#include "server/server_files.h"

namespace benevix {

// The table of what each organization has received this year. It is the server's; the program keeps
// a copy for the time of a run.
class YearToDate {
 public:
  YearToDate(Surroundings& surroundings, ServerFiles& server, RunValues& run, frmBVX& main,
             frmYtdTag& window, Desk& desk)
      : surroundings_(surroundings),
        server_(server),
        run_(run),
        main_(main),
        window_(window),
        desk_(desk) {}

  // Replaces the copy; an empty answer or an error page leaves an older one.
  void DownloadYtd();

  // Shows the selected row's amounts and sets the colour mark. A record without "," is told by
  // YtdState 2; a table that cannot be read changes nothing.
  void ShowYtd();

  // Opens the window of the amounts, or closes it.
  void iLbl_Click();

  // Takes the copy of this run away; errors are ignored.
  void RemoveYtd();

 private:
  enum class Mark { Found, NoData };
  enum class Lookup { Found, NotFound, Broken };  // broken: a record without ","
  void SetMark(Mark mark);
  // Looks in one line of the file for the selected row's record; `amounts` is what is behind its
  // key.
  [[nodiscard]] Lookup FindRecord(std::string_view text, std::string& amounts) const;
  void ShowAmounts(std::string_view amounts);
  [[nodiscard]] std::string File() const { return surroundings_.info.Resource("ytd.dat"); }

  Surroundings& surroundings_;
  ServerFiles& server_;
  RunValues& run_;
  frmBVX& main_;
  frmYtdTag& window_;
  Desk& desk_;
};

}  // namespace benevix
