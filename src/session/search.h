#pragma once

#include <functional>

#include "database/organization_database.h"
#include "forms/frmBVX.h"
#include "forms/frmSrch.h"

namespace benevix {

// Finds a row of the list by the beginning of its texts, or by a part of the organization's name.
class Search {
 public:
  // `select` scrolls a row into view and selects it.
  Search(frmSrch& window, const frmBVX& main, const OrganizationDatabase& database,
         std::function<void(int row)> select)
      : window_(window), main_(main), database_(database), select_(std::move(select)) {}

  // Starts again at row 1: the window was loaded or the word changed.
  void Restart();
  void Command1_Click();

 private:
  [[nodiscard]] int Find(const std::string& word);
  [[nodiscard]] int FindCountry(const std::string& word) const;
  // The first row with a sub-item that begins with the word; without one, the first row from
  // startRow_ on whose name contains it, where the search goes on next time.
  [[nodiscard]] int FindOrganization(const std::string& word);
  // The first of the rows up to `last` whose ID begins with the word.
  [[nodiscard]] int FindById(const std::string& word, int last) const;
  // The first row with a written text that begins with the word.
  [[nodiscard]] int FindWritten(const std::string& word) const;

  frmSrch& window_;
  const frmBVX& main_;
  const OrganizationDatabase& database_;
  std::function<void(int row)> select_;
  int startRow_ = 1;
};

}  // namespace benevix
