#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "core/run_values.h"
#include "core/settings_store.h"
#include "database/organization_list.h"
#include "forms/frmBVX.h"

namespace benevix {

// The version in a list file's first header line; nothing without one. Raises RuntimeError when the
// file cannot be read or the number is beyond a single.
std::optional<float> ListFileVersion(const Files& files, const std::string& file);

// The installed organization list, its version and the countries menu.
class OrganizationDatabase {
 public:
  OrganizationDatabase(frmBVX& main, RunValues& run, SettingsStore& settings, const Files& files,
                       std::string file)
      : main_(main), run_(run), settings_(settings), files_(files), file_(std::move(file)) {}

  // Puts the file's rows into ListView1; DBVersion is that of the last header line. Raises
  // RuntimeError when the file cannot be read, and after the rows so far when a line is bad.
  void LoadOrganizationList();

  // Sets DBVersion from the first header line; without one DBVersion is stored as `BVXDB`.
  void ReadListVersion();

  // Element i - 1 of `lclist` gets the country heading of row i.
  void BuildCountriesMenu();

  // The rows of organizations by their numbers as texts, in one pass over the list; one that is not
  // in the list has none.
  [[nodiscard]] std::map<std::string, int> FindRows(const std::set<std::string>& ids) const;
  // The first rows whose organization has one of the names.
  [[nodiscard]] std::map<std::string, int> FindNames(const std::set<std::string>& names) const;

  [[nodiscard]] const OrganizationList* List() const { return list_.get(); }

 private:
  frmBVX& main_;
  RunValues& run_;
  SettingsStore& settings_;
  const Files& files_;
  std::string file_;
  std::shared_ptr<const OrganizationList> list_;
};

}  // namespace benevix
