#include "session/search.h"

#include <algorithm>

#include "base/text.h"

namespace benevix {

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
  return window_.Option1[0].value ? FindCountry(word) : FindOrganization(word);
}

int Search::FindCountry(const std::string& word) const {
  const OrganizationList& list = *database_.List();
  for (const int row : list.Headings()) {
    if (BeginsWith(list.View(row, column::kCountry), word)) return row;
  }
  return 0;
}

int Search::FindOrganization(const std::string& word) {
  const OrganizationList& list = *database_.List();
  const OrganizationList::Found found = list.FindText(word, startRow_);
  const int last = found.beginning != 0 ? found.beginning : list.Count();
  int first = found.beginning;
  for (const int other : {FindById(word, last), FindWritten(word)}) {
    if (other != 0 && (first == 0 || other < first)) first = other;
  }
  if (first != 0) return first;
  if (found.part != 0) startRow_ = found.part + 1;
  return found.part;
}

int Search::FindById(const std::string& word, int last) const {
  // Only a digit or a minus can begin an ID.
  if (word[0] != '-' && (word[0] < '0' || word[0] > '9')) return 0;
  for (int row = 1; row <= last; ++row) {
    if (BeginsWith(database_.List()->Text(row, column::kId), word)) return row;
  }
  return 0;
}

int Search::FindWritten(const std::string& word) const {
  for (const auto& [row, cells] : main_.ListView1.cells) {
    if (std::any_of(cells.begin(), cells.end(),
                    [&](const std::string& cell) { return BeginsWith(cell, word); })) {
      return row;
    }
  }
  return 0;
}

}  // namespace benevix
