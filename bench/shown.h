#pragma once

namespace benevix {

// Once the main window has been painted for the first time, writes the line "shown" to the standard
// output and ends the application when the standard input ends.
void TellWhenShown();

}  // namespace benevix
