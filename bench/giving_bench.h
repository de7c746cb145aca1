#pragma once

#include <filesystem>
#include <string>

namespace benevix {

// Writes a history of so many sessions with ten gifts each.
void MakeHistory(const std::filesystem::path& file, int sessions);

struct ReportTimes {
  double shown = 0;  // milliseconds from the menu to the painted report of the whole history
  double csv = 0;    // and until its gifts are written as a table beside the history
};
// The giving report of the program in `folder`, in a real window. Needs a QApplication.
ReportTimes TimeReport(const std::string& folder);

}  // namespace benevix
