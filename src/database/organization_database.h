#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "core/run_values.h"
#include "core/settings_store.h"
#include "database/list_ahead.h"
#include "database/organization_list.h"
#include "forms/frmBVX.h"

namespace benevix {

// The version in the first header line of a list file; nothing without one. Raises RuntimeError
// when the file cannot be read or the number is beyond a float.
std::optional<float> ListFileVersion(const Files& files, const FilePath& file);

// The installed organization list, its version and the countries menu.
class OrganizationDatabase {
 public:
  // The first load takes the list that was loaded ahead, if it is the file's.
  OrganizationDatabase(frmBVX& main, RunValues& run, SettingsStore& settings, const Files& files,
                       FilePath file, ListAhead ahead = {})
      : main_(main),
        run_(run),
        settings_(settings),
        files_(files),
        file_(std::move(file)),
        ahead_(std::move(ahead)) {}

  // Loads the file into ListView1 and DBVersion from the last header line. Raises RuntimeError when
  // the file cannot be read, and at a bad line, with the rows before it loaded.
  void LoadOrganizationList();

  // Sets DBVersion from the first header line; without one, stores the current DBVersion in the
  // setting `BVXDB`. Raises like ListFileVersion.
  void ReadListVersion();

  // Fills the countries menu: element i - 1 of `lclist` is the country heading of row i.
  void BuildCountriesMenu();

  // The row of each ID that is in the list, found in one pass.
  [[nodiscard]] std::map<std::string, int> FindRowsById(const std::set<std::string>& ids) const;
  // The first row of each organization name that is in the list.
  [[nodiscard]] std::map<std::string, int> FindRowsByName(const std::set<std::string>& names) const;

  // Null without a loaded list.
  [[nodiscard]] const OrganizationList* List() const { return list_.get(); }

 private:
  frmBVX& main_;
  RunValues& run_;
  SettingsStore& settings_;
  const Files& files_;
  FilePath file_;
  ListAhead ahead_;
  std::shared_ptr<const OrganizationList> list_;
};

}  // namespace benevix
