#pragma once

#include <string>

namespace benevix {

struct DonationTimes {
  int rows = 0;      // of the list
  double entry = 0;  // milliseconds of one donation entry
};

// Gives `given` donations in the program of the folder, on the logic alone, and times the entry of
// further ones: a row is selected, an amount is typed and Enter pressed.
DonationTimes TimeDonationEntries(const std::string& folder, int given);

}  // namespace benevix
