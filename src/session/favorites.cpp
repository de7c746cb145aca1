#include "session/favorites.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

#include "base/number_text.h"

namespace benevix {
namespace {

const std::string kRemoveHint =
    "Choose from the Favorites menu the favorite to remove, or Cancel Remove.";

// The number in a value's name; 0 for a name that is none.
int NumberOf(const std::string& name) {
  constexpr std::size_t mostDigits = 9;
  const bool isNumber = !name.empty() && name.size() <= mostDigits &&
                        name.find_first_not_of("0123456789") == std::string::npos;
  return isNumber ? std::stoi(name) : 0;
}

std::optional<Favorite> FavoriteIn(const std::string& text) {
  const auto comma = text.find(',');
  if (comma == std::string::npos || !IsNumeric(text.substr(0, comma))) return std::nullopt;
  return Favorite{text.substr(0, comma), text.substr(comma + 1)};
}

// Nothing if the count is not a number or a favorite is missing or unreadable.
std::optional<std::vector<Favorite>> Read(const SettingsTexts& stored) {
  std::vector<Favorite> favorites;
  const auto text = stored.find("");
  if (text == stored.end() || text->second.empty()) return favorites;
  const auto count = ParseNumber(text->second);
  if (!count) return std::nullopt;
  for (int i = 1; i <= std::trunc(*count); ++i) {
    const auto value = stored.find(std::to_string(i));
    const auto favorite = value == stored.end() ? std::nullopt : FavoriteIn(value->second);
    if (!favorite) return std::nullopt;
    favorites.push_back(*favorite);
  }
  return favorites;
}

// The readable ones of damaged favorites, in the order of their numbers.
std::vector<Favorite> Repaired(const SettingsTexts& stored) {
  std::map<int, Favorite> readable;
  for (const auto& [name, text] : stored) {
    const auto favorite = FavoriteIn(text);
    if (NumberOf(name) > 0 && favorite) readable[NumberOf(name)] = *favorite;
  }
  std::vector<Favorite> favorites;
  favorites.reserve(readable.size());
  for (const auto& [number, favorite] : readable) favorites.push_back(favorite);
  return favorites;
}

void Write(const std::vector<Favorite>& favorites, SettingsTexts& stored) {
  std::erase_if(stored, [](const auto& value) { return NumberOf(value.first) > 0; });
  for (std::size_t i = 0; i < favorites.size(); ++i) {
    stored[std::to_string(i + 1)] = favorites[i].id + "," + favorites[i].name;
  }
  stored[""] = std::to_string(favorites.size());
}

}  // namespace

void Favorites::LoadFavoritesMenu() {
  removing_ = false;
  const auto stored = settings_.GetStrings(Root::CurrentUser, kFavoritesPath);
  if (!stored) return Show(favorites_);
  const auto favorites = Read(*stored);
  if (favorites) return Show(*favorites);
  if (!Change([](std::vector<Favorite>&) {})) Show(Repaired(*stored));
}

bool Favorites::Change(const std::function<void(std::vector<Favorite>&)>& change) {
  std::vector<Favorite> favorites;
  const auto changeStored = [&](SettingsTexts& stored) {
    const auto read = Read(stored);
    favorites = read ? *read : Repaired(stored);
    change(favorites);
    Write(favorites, stored);
  };
  if (!settings_.ChangeStrings(Root::CurrentUser, kFavoritesPath, changeStored)) return false;
  Show(std::move(favorites));
  return true;
}

void Favorites::ChangeOrSay(const std::function<void(std::vector<Favorite>&)>& change) {
  if (!Change(change)) {
    main_.Label6.caption = "The favorites stay as they were: the settings cannot be written.";
  }
}

void Favorites::Show(std::vector<Favorite> favorites) {
  favorites_ = std::move(favorites);
  std::set<std::string> ids;
  for (const Favorite& favorite : favorites_) ids.insert(favorite.id);
  const auto rows = database_.FindRowsById(ids);
  for (Favorite& favorite : favorites_) {
    const auto found = rows.find(favorite.id);
    favorite.row = found == rows.end() ? 0 : found->second;
  }
  BuildMenu();
}

void Favorites::BuildMenu() {
  main_.mnuNoFavs.visible = favorites_.empty();
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
  const std::string name = list.SelectedText(column::kOrganization);
  ChangeOrSay([&](std::vector<Favorite>& favorites) {
    const bool isFavorite =
        std::any_of(favorites.begin(), favorites.end(),
                    [&](const Favorite& favorite) { return favorite.id == id; });
    if (!isFavorite) favorites.push_back({id, name});
  });
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
  const Favorite chosen = favorites_[index];
  mnuCancelRemove_Click();
  ChangeOrSay([&](std::vector<Favorite>& favorites) {
    // By its number, since another copy of the program may have changed the order.
    std::erase_if(favorites, [&](const Favorite& favorite) { return favorite.id == chosen.id; });
  });
}

std::vector<int> Favorites::Rows() const {
  std::set<int> rows;
  for (const Favorite& favorite : favorites_) rows.insert(favorite.row);
  rows.erase(0);
  return {rows.begin(), rows.end()};
}

std::vector<std::string> Favorites::NamesOf(const std::vector<std::int32_t>& ids) const {
  std::vector<std::string> names;
  for (const Favorite& favorite : favorites_) {
    const bool isMeant = std::any_of(
        ids.begin(), ids.end(), [&](std::int32_t id) { return std::to_string(id) == favorite.id; });
    if (isMeant) names.push_back(favorite.name);
  }
  return names;
}

}  // namespace benevix
