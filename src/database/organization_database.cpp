#include "database/organization_database.h"

#include <unordered_map>

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/line_reader.h"

namespace benevix {

void OrganizationDatabase::LoadOrganizationList() {
  list_.reset();  // first, so that memory never holds two lists
  list_ = std::make_shared<const OrganizationList>(*files_.Open(file_));
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

namespace {

// The first row of each wanted key, under its name in `wanted`; keyOf(row) is the key of a row.
template <class Keys, class KeyOf>
std::map<std::string, int> FindFirst(const OrganizationList* list, Keys wanted, KeyOf keyOf) {
  std::map<std::string, int> rows;
  for (int row = 1; list != nullptr && row <= list->Count() && !wanted.empty(); ++row) {
    const auto found = wanted.find(keyOf(row));
    if (found == wanted.end()) continue;
    rows[found->second] = row;
    wanted.erase(found);
  }
  return rows;
}

}  // namespace

std::map<std::string, int> OrganizationDatabase::FindRowsById(
    const std::set<std::string>& ids) const {
  std::unordered_map<std::optional<std::int32_t>, std::string> wanted;
  for (const std::string& id : ids) {
    if (const auto number = IdIn(id)) wanted[number] = id;
  }
  return FindFirst(list_.get(), wanted, [this](int row) { return list_->Id(row); });
}

std::map<std::string, int> OrganizationDatabase::FindRowsByName(
    const std::set<std::string>& names) const {
  std::unordered_map<std::string_view, std::string> wanted;
  for (const std::string& name : names) wanted.emplace(name, name);
  wanted.erase("");
  return FindFirst(list_.get(), wanted,
                   [this](int row) { return list_->View(row, column::kOrganization); });
}

}  // namespace benevix
