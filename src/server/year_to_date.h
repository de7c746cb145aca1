#pragma once

#include <memory>
#include <string_view>

#include "controls/desk.h"
#include "core/run_values.h"
#include "forms/frmBVX.h"
#include "forms/frmYtdTag.h"
#include "platform/environment.h"
#include "server/server_files.h"
#include "server/year_to_date_table.h"

namespace benevix {

// The server's table of what each organization has received; the program keeps a copy while it
// runs. A record is "ID,today,month,year,total" and LF.
class YearToDate {
 public:
  YearToDate(Environment& environment, ServerFiles& server, RunValues& run, frmBVX& main,
             frmYtdTag& window, Desk& desk)
      : environment_(environment),
        server_(server),
        run_(run),
        main_(main),
        window_(window),
        desk_(desk) {}

  // Replaces the copy; an empty answer or an error page leaves an older copy in place.
  void DownloadYtd();

  // Shows the selected row's amounts and sets the indicator. A record without "," sets YtdState 2;
  // a table that cannot be read changes nothing.
  void ShowYtd();

  // Opens or closes the window with the amounts.
  void iLbl_Click();

  // A new session begins, without a selected row: closes the window and forgets its amounts.
  void Reset();

  // Deletes the copy of this run; errors are ignored.
  void RemoveYtd();

 private:
  // Opens the copy, and indexes it when it is another one. Raises RuntimeError.
  std::unique_ptr<FileReader> OpenTable();
  void SetIndicator(bool found);
  void ShowAmounts(std::string_view amounts);
  [[nodiscard]] FilePath File() const;

  Environment& environment_;
  ServerFiles& server_;
  RunValues& run_;
  frmBVX& main_;
  frmYtdTag& window_;
  Desk& desk_;
  YearToDateTable table_;
  FileState indexed_;  // of the copy, when the table was made from it
};

}  // namespace benevix
