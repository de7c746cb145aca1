#pragma once

namespace benevix {

// Writes the line "shown" when the main window has been painted for the first time, then exits at
// the end of the standard input.
void ReportWhenShown();

}  // namespace benevix
