#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "database/organization_list.h"

namespace benevix {

// What another list changes, by the organizations' IDs.
struct ListChanges {
  std::size_t added = 0;
  std::vector<std::int32_t> gone;
};

ListChanges CompareLists(const OrganizationList& now, const OrganizationList& next);

// The changes in a sentence; `favorites` are the names of those favorites that are gone.
std::string TellChanges(const ListChanges& changes, const std::vector<std::string>& favorites);

}  // namespace benevix
