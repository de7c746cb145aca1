#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/settings_store.h"
#include "database/organization_database.h"
#include "forms/frmBVX.h"
#include "session/list_view_events.h"

namespace benevix {

// The favorite organizations, stored one a value, numbered from 1, as ID, ",", name.
class Favorites {
 public:
  Favorites(frmBVX& main, SettingsStore& settings, const OrganizationDatabase& database,
            ListViewEvents& listView)
      : main_(main), settings_(settings), database_(database), listView_(listView) {}

  // Makes a menu element of each stored favorite; a damaged store is repaired first. One that is
  // not in the list is marked so, and disabled except while one is being removed, which this ends.
  void LoadFavoritesMenu();

  // Adds the selected organization, once.
  void Add();
  // Selects the favorite's row as a left click does, or removes the favorite while one is being
  // removed.
  void mnuFavs_Click(int index);
  // From here on the next chosen favorite is removed.
  void mnuFavsRemove_Click();
  void mnuCancelRemove_Click();

  // The rows of the favorites that are in the list, in list order.
  [[nodiscard]] std::vector<int> Rows() const;

 private:
  struct Favorite {
    std::string id, name;
    int row = 0;  // 0 when it is not in the list
  };

  // Nothing when the count is no number or a favorite is missing or unreadable.
  [[nodiscard]] std::optional<std::vector<Favorite>> Read();
  // Keeps the readable favorites in order, numbers them from 1 and writes their count.
  void Repair();
  void Remove(std::size_t index);
  void Store();
  void BuildMenu();
  void EndRemoving();
  [[nodiscard]] std::string Stored(const std::string& name);
  void Save(const std::string& name, const std::string& value);

  frmBVX& main_;
  SettingsStore& settings_;
  const OrganizationDatabase& database_;
  ListViewEvents& listView_;
  std::vector<Favorite> favorites_;
  bool removing_ = false;
  std::string hintBefore_;
};

}  // namespace benevix
