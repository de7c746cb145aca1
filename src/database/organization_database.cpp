#include "database/organization_database.h"

#include <unordered_set>

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/line_reader.h"

namespace benevix {

void OrganizationDatabase::LoadOrganizationList() {
  list_.reset();  // first, so that memory never holds two lists
  list_ = ahead_.Take(files_, file_);
  if (!list_) list_ = std::make_shared<const OrganizationList>(*files_.Open(file_));
  main_.ListView1.SetRows(list_);
  if (list_->Version()) run_.DBVersion = *list_->Version();
  if (!list_->Damage().empty()) throw RuntimeError(FromUtf8(file_.Utf8()) + ": " + list_->Damage());
}

std::optional<float> ListFileVersion(const Files& files, const FilePath& file) {
  LineReader lines(files.Open(file));
  while (const auto line = lines.Next()) {
    if (const auto version = HeaderVersion(*line)) return version;
  }
  return std::nullopt;
}

void OrganizationDatabase::ReadListVersion() {
  if (const auto version = ListFileVersion(files_, file_)) {
    run_.DBVersion = *version;
  } else {
    settings_.SaveUserString("BVXDB", SingleToText(run_.DBVersion));
  }
}

void OrganizationDatabase::BuildCountriesMenu() {
  main_.lclist.items.clear();
  main_.lclist.items[0];
  if (!list_) return;
  for (const int row : list_->Headings()) {
    const std::string country = list_->Text(row, column::kCountry);
    if (!country.empty()) main_.lclist.items[row - 1].caption = country;
  }
}

std::map<std::string, int> OrganizationDatabase::FindRowsById(
    const std::set<std::string>& ids) const {
  std::set<std::int32_t> numbers;
  for (const std::string& id : ids) {
    if (const auto number = IdIn(id)) numbers.insert(*number);
  }
  std::map<std::string, int> rows;
  if (!list_) return rows;
  for (const auto& [id, row] : list_->FindIds(numbers)) rows[std::to_string(id)] = row;
  return rows;
}

std::map<std::string, int> OrganizationDatabase::FindRowsByName(
    const std::set<std::string>& names) const {
  std::unordered_set<std::string_view> wanted(names.begin(), names.end());
  wanted.erase("");
  std::map<std::string, int> rows;
  for (int row = 1; list_ && row <= list_->Count() && !wanted.empty(); ++row) {
    const std::string_view name = list_->View(row, column::kOrganization);
    if (wanted.erase(name) != 0) rows[std::string(name)] = row;
  }
  return rows;
}

}  // namespace benevix
