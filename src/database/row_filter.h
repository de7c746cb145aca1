#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "controls/list_view.h"
#include "database/organization_list.h"

namespace benevix {

// The words of a text, which are separated by blanks.
std::vector<std::string> WordsOf(std::string_view text);

// The organizations whose name, type or country contains each of the words, ignoring case, and the
// headings of their countries, in list order. Only rows of `within` are looked at, null for all;
// it has the headings of its rows.
ShownRows RowsWith(const OrganizationList& list, const std::vector<std::string>& words,
                   const ShownRows* within);

}  // namespace benevix
