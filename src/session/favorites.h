#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/settings_store.h"
#include "database/organization_database.h"
#include "forms/frmBVX.h"
#include "session/list_view_events.h"

namespace benevix {

// The favorite organizations. In the settings key kFavoritesPath the default value is their count;
// the values "1", "2" ... hold ID, ",", name.
class Favorites {
 public:
  Favorites(frmBVX& main, SettingsStore& settings, const OrganizationDatabase& database,
            ListViewEvents& listView)
      : main_(main), settings_(settings), database_(database), listView_(listView) {}

  // Fills the menu with the stored favorites, after a repair if the settings are damaged, and ends
  // remove mode. A favorite that is not in the list is marked, and disabled except in remove mode.
  void LoadFavoritesMenu();

  // Adds the selected organization unless it is a favorite already.
  void Add();
  // Selects the favorite's row as a left click does; in remove mode removes the favorite.
  void mnuFavs_Click(int index);
  // Starts remove mode: the next chosen favorite is removed.
  void mnuFavsRemove_Click();
  void mnuCancelRemove_Click();

  // The rows of the favorites that are in the list, in list order.
  [[nodiscard]] std::vector<int> Rows() const;

 private:
  struct Favorite {
    std::string id, name;
    int row = 0;  // 0 when it is not in the list
  };

  // Nothing if the count is not a number or a favorite is missing or unreadable.
  [[nodiscard]] std::optional<std::vector<Favorite>> Read();
  // Keeps the readable favorites in order, numbers them from 1 and writes their count.
  void Repair();
  void Remove(std::size_t index);
  void BuildMenu();
  [[nodiscard]] std::string Stored(const std::string& name);
  void Save(const std::string& name, const std::string& value);

  frmBVX& main_;
  SettingsStore& settings_;
  const OrganizationDatabase& database_;
  ListViewEvents& listView_;
  std::vector<Favorite> favorites_;
  bool removing_ = false;
  std::string previousHint_;
};

}  // namespace benevix
