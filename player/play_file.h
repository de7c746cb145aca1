#pragma once

#include <functional>
#include <memory>
#include <string>

#include "player/front_end.h"
#include "player/world_boxes.h"

namespace benevix {

// Exit codes, the graver the higher.
inline constexpr int kExitPassed = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUnreadable = 2;  // or the program broke off

using FrontEndMaker = std::function<std::unique_ptr<FrontEnd>(BoxAnswers& answers)>;

// Plays one script in a world of its own and prints its report; gives the exit code. A script that
// takes too long ends the process.
int PlayFile(const std::string& file, const FrontEndMaker& makeFrontEnd);

}  // namespace benevix
