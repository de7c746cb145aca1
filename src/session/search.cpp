#include "session/search.h"

#include <algorithm>
#include <string_view>

#include "base/text.h"

namespace benevix {
namespace {

bool Contains(std::string_view text, std::string_view word) {
  return std::search(text.begin(), text.end(), word.begin(), word.end(), SameLetter) != text.end();
}

}  // namespace

void Search::Restart() {
  startRow_ = 1;
  window_.NotFound.visible = false;
}

void Search::Command1_Click() {
  const std::string& word = window_.Text1.text;
  if (word.empty() || database_.List() == nullptr) return;
  const int row = Find(word);
  const bool goesOn = window_.Option1[1].value && startRow_ > 1;
  window_.NotFound.caption = goesOn ? "Nothing more found" : "Nothing found";
  window_.NotFound.visible = row == 0;
  if (row != 0) select_(row);
}

int Search::Find(const std::string& word) {
  if (window_.Option1[0].value) return FindCountry(word);
  const int first = FindByBeginning(word);
  if (first != 0) return first;
  const int row = FindByNamePart(word);
  if (row != 0) startRow_ = row + 1;
  return row;
}

int Search::FindCountry(const std::string& word) const {
  const OrganizationList& list = *database_.List();
  for (const int row : list.Headings()) {
    if (BeginsWith(list.View(row, column::kCountry), word)) return row;
  }
  return 0;
}

int Search::FindByBeginning(const std::string& word) const {
  const OrganizationList& list = *database_.List();
  // Only a digit or a minus can begin an ID.
  const bool maybeId = word[0] == '-' || (word[0] >= '0' && word[0] <= '9');
  int found = 0;
  for (int row = 1; row <= list.Count() && found == 0; ++row) {
    if (BeginsWith(list.View(row, column::kOrganization), word) ||
        BeginsWith(list.View(row, column::kType), word) ||
        (maybeId && BeginsWith(list.Text(row, column::kId), word))) {
      found = row;
    }
  }
  for (const auto& [row, cells] : main_.ListView1.cells) {
    if (found != 0 && row >= found) break;
    if (std::any_of(cells.begin(), cells.end(),
                    [&](const std::string& cell) { return BeginsWith(cell, word); })) {
      return row;
    }
  }
  return found;
}

int Search::FindByNamePart(const std::string& word) const {
  const OrganizationList& list = *database_.List();
  for (int row = startRow_; row <= list.Count(); ++row) {
    if (Contains(list.View(row, column::kOrganization), word)) return row;
  }
  return 0;
}

}  // namespace benevix
