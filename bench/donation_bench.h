#pragma once

#include <string>

namespace benevix {

struct DonationTimes {
  int rows = 0;      // of the list
  int given = 0;     // donations
  double entry = 0;  // median of one donation entry, in milliseconds
};

// Where the steps of the session are kept: another copy of the program may hold the folder.
enum class Steps { InFile, InMemory };

// Starts the program of `folder` without windows, gives to `given` organizations, then measures
// changing their amounts: a row is selected, an amount typed and Enter pressed.
DonationTimes TimeDonationEntries(const std::string& folder, int given, Steps steps);

}  // namespace benevix
