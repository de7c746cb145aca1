#pragma once

#include <vector>

#include "player/report.h"
#include "player/script.h"
#include "player/stage.h"

namespace benevix {

// Plays the lines one after the other. What cannot be done, and a check that does not hold, is
// reported, and the play goes on.
void Play(const std::vector<ScriptLine>& script, Stage& stage, Report& report);

}  // namespace benevix
