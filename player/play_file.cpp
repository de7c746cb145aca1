#include "player/play_file.h"

#include <chrono>
#include <cstdlib>
#include <exception>
#include <iostream>

#include "player/player.h"
#include "player/report.h"
#include "player/script.h"
#include "player/stage.h"
#include "player/watchdog.h"
#include "player/world.h"

namespace benevix {
namespace {

constexpr std::chrono::seconds kLongest(60);

void PlayInWorld(const std::vector<ScriptLine>& script, const FrontEndMaker& makeFrontEnd,
                 Report& report) {
  World world;
  const std::unique_ptr<FrontEnd> frontEnd = makeFrontEnd(world.boxes);
  Stage stage(world, *frontEnd);
  Play(script, stage, report);
}

}  // namespace

int PlayFile(const std::string& file, const FrontEndMaker& makeFrontEnd) {
  Report report(file);
  try {
    const std::vector<ScriptLine> script = ReadScript(file);
    const Watchdog watchdog(kLongest, [&] {
      report.Fail("the script to end within " + std::to_string(kLongest.count()) + " seconds,",
                  "no end");
      report.PrintCounts();
      std::_Exit(kExitFailed);
    });
    PlayInWorld(script, makeFrontEnd, report);
  } catch (const UnreadableScript& error) {
    std::cout << error.what() << std::endl;
    return kExitUnreadable;
  } catch (const std::exception& error) {
    report.BrokeOff(error.what());
    report.PrintCounts();
    return kExitUnreadable;
  }
  report.PrintCounts();
  return report.HasFailed() ? kExitFailed : kExitPassed;
}

}  // namespace benevix
