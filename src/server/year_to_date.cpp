#include "server/year_to_date.h"

#include "base/lines.h"
#include "base/runtime_error.h"
#include "database/organization_list.h"
#include "platform/line_reader.h"

namespace benevix {

// A second copy of the program has a table of its own, as each deletes its table at its end.
FilePath YearToDate::File() const {
  const FilePath file = environment_.info.Resource("ytd.dat");
  return run_.HoldsFolder ? file : environment_.files.TemporaryName(file);
}

void YearToDate::DownloadYtd() {
  run_.YtdState = 0;
  try {
    const std::string table = server_.FetchServerText("53rv3r/ytdt.dat");
    if (table.empty() || table[0] == '<') return;
    environment_.files.Replace(File(), table + "\r\n");
    run_.YtdState = 1;
    OpenTable();  // now, so that the first row waits no longer than the others
  } catch (const RuntimeError&) {
    // The program also works without the table.
  }
}

std::unique_ptr<FileReader> YearToDate::OpenTable() {
  auto file = environment_.files.Open(File());
  if (file->State() != indexed_) {
    table_ = YearToDateTable(environment_.files.ReadAll(File()));
    indexed_ = file->State();
  }
  return file;
}

void YearToDate::ShowYtd() {
  try {
    auto file = OpenTable();
    const auto id = IdIn(main_.ListView1.SelectedText(column::kId));
    const auto amounts = id ? table_.Find(*id) : std::nullopt;
    if (amounts) {
      ShowAmounts(LineReader(std::move(file), *amounts).Next().value_or(""));
    } else if (table_.IsDamaged()) {
      run_.YtdState = 2;
    }
    SetIndicator(amounts.has_value());
  } catch (const RuntimeError&) {
    // A table that cannot be read.
  }
}

void YearToDate::ShowAmounts(std::string_view amounts) {
  if (amounts.ends_with('\r')) amounts.remove_suffix(1);
  window_.Organization.caption = main_.ListView1.SelectedText(column::kOrganization);
  for (int i = 0; i < 4; ++i) {
    const std::string_view amount = i < 3 ? CutField(amounts, ',') : amounts;
    window_.Label2[i].caption = "$ " + (amount.empty() ? "N/A" : std::string(amount));
  }
}

void YearToDate::SetIndicator(bool found) {
  main_.iLbl.foreColor = found ? colors::kBlack : colors::kOff;
  main_.Shape2.fillColor = found ? colors::kGreen : colors::kLightGrey;
  main_.Shape2.meaning = found ? "Amounts are known" : kNoAmounts;
}

void YearToDate::iLbl_Click() {
  if (desk_.IsShown(window_)) return desk_.Unload(window_);
  desk_.Load(window_);
  if (run_.YtdState != 0 && main_.ListView1.selected != 0) ShowYtd();
  desk_.Show(window_);
}

void YearToDate::Reset() {
  desk_.Unload(window_);
  window_ = frmYtdTag();  // amounts of the selected row are kept while it is closed, too
  if (run_.YtdState != 0) SetIndicator(false);
}

void YearToDate::RemoveYtd() {
  if (run_.YtdState == 0) return;
  try {
    environment_.files.Remove(File());
  } catch (const RuntimeError&) {
    // The next download replaces it.
  }
}

}  // namespace benevix
