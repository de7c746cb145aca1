#pragma once

#include <string>

namespace benevix {

struct DonationTimes {
  int rows = 0;      // of the list
  int given = 0;     // donations
  double entry = 0;  // milliseconds of one donation entry
};

// Gives to `given` organizations in the program of the folder, on the logic alone, and times how
// their amounts are changed then: a row is selected, an amount is typed and Enter pressed.
DonationTimes TimeDonationEntries(const std::string& folder, int given);

}  // namespace benevix
