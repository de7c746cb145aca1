#include "session/favorites.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "base/number_text.h"

namespace benevix {
namespace {

// A repair stops after so many missing values in a row.
constexpr std::size_t kMaxGap = 100;

const std::string kRemoveHint =
    "Choose from the Favorites menu the favorite to remove, or Cancel Remove.";

std::string Id(const std::string& favorite) {
  return favorite.substr(0, favorite.find(','));
}

bool IsReadable(const std::string& favorite) {
  return favorite.find(',') != std::string::npos && IsNumeric(Id(favorite));
}

}  // namespace

std::string Favorites::Stored(const std::string& name) {
  return settings_.GetString(Root::CurrentUser, kFavoritesPath, name);
}

void Favorites::Save(const std::string& name, const std::string& value) {
  settings_.SaveString(Root::CurrentUser, kFavoritesPath, name, value);
}

void Favorites::LoadFavoritesMenu() {
  auto favorites = Read();
  if (!favorites) {
    Repair();
    favorites = Read();
  }
  favorites_ = favorites.value_or(std::vector<Favorite>());
  removing_ = false;
  std::set<std::string> ids;
  for (const Favorite& favorite : favorites_) ids.insert(favorite.id);
  const auto rows = database_.FindRowsById(ids);
  for (Favorite& favorite : favorites_) {
    const auto found = rows.find(favorite.id);
    favorite.row = found == rows.end() ? 0 : found->second;
  }
  BuildMenu();
}

std::optional<std::vector<Favorites::Favorite>> Favorites::Read() {
  const std::string text = Stored("");
  std::vector<Favorite> favorites;
  if (text.empty()) return favorites;
  const auto count = ParseNumber(text);
  if (!count) return std::nullopt;
  for (int i = 1; i <= std::trunc(*count); ++i) {
    const std::string favorite = Stored(std::to_string(i));
    if (!IsReadable(favorite)) return std::nullopt;
    favorites.push_back({Id(favorite), favorite.substr(favorite.find(',') + 1)});
  }
  return favorites;
}

void Favorites::Repair() {
  std::vector<std::string> readable;
  std::size_t last = 0;
  for (std::size_t i = 1; i <= last + kMaxGap; ++i) {
    const std::string favorite = Stored(std::to_string(i));
    if (!favorite.empty()) last = i;
    if (IsReadable(favorite)) readable.push_back(favorite);
  }
  for (std::size_t i = 0; i < readable.size(); ++i) Save(std::to_string(i + 1), readable[i]);
  Save("", std::to_string(readable.size()));
  // Values left after the last one would reappear at the next repair.
  for (std::size_t i = readable.size() + 1; i <= last; ++i) {
    settings_.DeleteValue(Root::CurrentUser, kFavoritesPath, std::to_string(i));
  }
}

void Favorites::BuildMenu() {
  auto& items = main_.mnuFavs.items;
  items.clear();
  int index = 0;
  for (const Favorite& favorite : favorites_) {
    MenuItem& item = items[index++];
    item.caption = favorite.row != 0 ? favorite.name : favorite.name + " (not in the list)";
    item.enabled = favorite.row != 0 || removing_;
  }
  main_.mnuFavsRemove.enabled = !favorites_.empty() && !removing_;
  main_.mnuCancelRemove.enabled = removing_;
}

void Favorites::Add() {
  const ListView& list = main_.ListView1;
  const std::string id = list.SelectedText(column::kId);
  if (list.selected == 0 || !list.Text(list.selected).empty() || id.empty()) return;
  const bool isFavorite = std::any_of(favorites_.begin(), favorites_.end(),
                                      [&](const Favorite& favorite) { return favorite.id == id; });
  if (isFavorite) return;
  const std::string name = list.SelectedText(column::kOrganization);
  favorites_.push_back({id, name, list.selected});
  // The value before the count: after a crash between the two the old favorites are intact.
  Save(std::to_string(favorites_.size()), id + "," + name);
  Save("", std::to_string(favorites_.size()));
  BuildMenu();
}

void Favorites::mnuFavs_Click(int index) {
  const auto i = static_cast<std::size_t>(index);
  if (removing_) return Remove(i);
  if (favorites_[i].row != 0) listView_.Select(favorites_[i].row, false);
}

void Favorites::mnuFavsRemove_Click() {
  if (!removing_) previousHint_ = main_.Label6.caption;
  removing_ = true;
  main_.Label6.caption = kRemoveHint;
  BuildMenu();
}

void Favorites::mnuCancelRemove_Click() {
  removing_ = false;
  // Another hint shown meanwhile stays.
  if (main_.Label6.caption == kRemoveHint) main_.Label6.caption = previousHint_;
  BuildMenu();
}

void Favorites::Remove(std::size_t index) {
  favorites_.erase(favorites_.begin() + static_cast<std::ptrdiff_t>(index));
  for (std::size_t i = 0; i < favorites_.size(); ++i) {
    Save(std::to_string(i + 1), favorites_[i].id + "," + favorites_[i].name);
  }
  Save("", std::to_string(favorites_.size()));
  settings_.DeleteValue(Root::CurrentUser, kFavoritesPath, std::to_string(favorites_.size() + 1));
  mnuCancelRemove_Click();
}

std::vector<int> Favorites::Rows() const {
  std::set<int> rows;
  for (const Favorite& favorite : favorites_) rows.insert(favorite.row);
  rows.erase(0);
  return {rows.begin(), rows.end()};
}

}  // namespace benevix
