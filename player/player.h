#pragma once

#include <string>

#include "player/front_end.h"

namespace benevix {

// Exit codes, the worse the higher.
inline constexpr int kExitPassed = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUnreadable = 2;  // or the program broke off

// Plays one script in a world of its own and prints its report; gives the exit code. What cannot be
// done, and a check that does not hold, is reported, and the script goes on. A script that takes
// longer than a minute ends the process.
int PlayFile(const std::string& file, const FrontEndMaker& makeFrontEnd);

}  // namespace benevix
