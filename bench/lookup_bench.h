#pragma once

#include <filesystem>
#include <string>

namespace benevix {

// Writes a year-to-date table of so many organizations, in no order.
void MakeTable(const std::filesystem::path& file, int organizations);

struct TableTimes {
  double indexed = 0;  // the first row, with which the table is indexed, in milliseconds
  double row = 0;      // median of the others
};
// Shows the amounts of rows of the list in the program folder.
TableTimes TimeYearToDate(const std::string& folder, int organizations);

struct FilterTimes {
  double first = 0,
         further = 0;  // milliseconds, a first letter and the slowest of the further ones
};
// Types into the filter of the program in `folder`, in a real window, until the rows are painted.
// Needs a QApplication.
FilterTimes TimeFilter(const std::string& folder);

struct FavoriteTimes {
  double menu = 0;   // from the stored favorites to the menu of the main window, in milliseconds
  double added = 0;  // one more favorite, with its write to the disk
};
// The favorites of the program in `folder`, in a real window; they are stored in settings of its
// own. Needs a QApplication.
FavoriteTimes TimeFavorites(const std::string& folder, int favorites);

}  // namespace benevix
