#include "server/year_to_date.h"

#include "base/lines.h"
#include "base/runtime_error.h"
#include "database/organization_list.h"

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
  } catch (const RuntimeError&) {
    // The program also works without the table.
  }
}

void YearToDate::ShowYtd() {
  std::string table;
  try {
    table = environment_.files.ReadAll(File());
  } catch (const RuntimeError&) {
    return;
  }
  // Only CR LF ends a line of the copy; the records in a line end in LF.
  std::string_view rest = table;
  while (!rest.empty()) {
    const auto end = rest.find("\r\n");
    std::string amounts;
    const Lookup lookup = FindRecord(rest.substr(0, end), amounts);
    if (lookup == Lookup::Found) {
      ShowAmounts(amounts);
      return SetIndicator(true);
    }
    if (lookup == Lookup::Malformed) {
      run_.YtdState = 2;
      break;
    }
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 2);
  }
  SetIndicator(false);
}

YearToDate::Lookup YearToDate::FindRecord(std::string_view text, std::string& amounts) const {
  constexpr std::size_t shortest = 13;  // less than this is not searched
  const std::string id = main_.ListView1.SelectedText(column::kId);
  while (text.size() >= shortest) {
    const std::string_view record = CutField(text, '\n');
    const auto comma = record.find(',');
    if (comma == std::string_view::npos) return Lookup::Malformed;
    if (record.substr(0, comma) != id) continue;
    amounts = record.substr(comma + 1);
    return Lookup::Found;
  }
  return Lookup::NotFound;
}

void YearToDate::ShowAmounts(std::string_view amounts) {
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
