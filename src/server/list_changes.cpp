#include "server/list_changes.h"

#include <algorithm>
#include <iterator>

namespace benevix {
namespace {

using Ids = std::vector<std::int32_t>;

// Sorted, each once.
Ids IdsOf(const OrganizationList& list) {
  Ids ids;
  for (int row = 1; row <= list.Count(); ++row) {
    if (const auto id = list.Id(row)) ids.push_back(*id);
  }
  std::sort(ids.begin(), ids.end());
  ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
  return ids;
}

Ids Without(const Ids& ids, const Ids& others) {
  Ids rest;
  std::set_difference(ids.begin(), ids.end(), others.begin(), others.end(),
                      std::back_inserter(rest));
  return rest;
}

std::string Organizations(std::size_t count) {
  return std::to_string(count) + (count == 1 ? " organization" : " organizations");
}

}  // namespace

ListChanges CompareLists(const OrganizationList& now, const OrganizationList& next) {
  const Ids present = IdsOf(now), coming = IdsOf(next);
  return {Without(coming, present).size(), Without(present, coming)};
}

std::string TellChanges(const ListChanges& changes, const std::vector<std::string>& favorites) {
  std::string text = "The new list adds " + Organizations(changes.added) + "; " +
                     std::to_string(changes.gone.size()) + " gone";
  for (std::size_t i = 0; i < favorites.size(); ++i) {
    text += (i == 0 ? ", of your favorites " : ", ") + favorites[i];
  }
  return text + ". It is used from the next start on.";
}

}  // namespace benevix
