#pragma once

#include <string>

namespace benevix {

struct DonationTimes {
  int rows = 0;      // of the list
  int given = 0;     // donations
  double entry = 0;  // median of one donation entry, in milliseconds
};

// Starts the program of `folder` without windows, gives to `given` organizations, then measures
// changing their amounts: a row is selected, an amount typed and Enter pressed.
DonationTimes TimeDonationEntries(const std::string& folder, int given);

}  // namespace benevix
