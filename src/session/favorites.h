#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/settings_store.h"
#include "database/organization_database.h"
#include "forms/frmBVX.h"
#include "session/list_view_events.h"

namespace benevix {

struct Favorite {
  std::string id, name;
  int row = 0;  // 0 when it is not in the list
};

// The favorite organizations. In the settings key kFavoritesPath the default value is their count;
// the values "1", "2" ... hold ID, ",", name. Another copy of the program may change them, too:
// each change is made to what is stored at that moment.
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

  // The names of the favorites among these organizations.
  [[nodiscard]] std::vector<std::string> NamesOf(const std::vector<std::int32_t>& ids) const;

 private:
  // Changes the stored favorites, repaired where they are damaged, and shows them; false, with
  // nothing changed, when they cannot be written.
  bool Change(const std::function<void(std::vector<Favorite>&)>& change);
  // The same, and tells the user when nothing was written.
  void ChangeOrSay(const std::function<void(std::vector<Favorite>&)>& change);
  void Show(std::vector<Favorite> favorites);
  void Remove(std::size_t index);
  void BuildMenu();

  frmBVX& main_;
  SettingsStore& settings_;
  const OrganizationDatabase& database_;
  ListViewEvents& listView_;
  std::vector<Favorite> favorites_;
  bool removing_ = false;
  std::string previousHint_;
};

}  // namespace benevix
