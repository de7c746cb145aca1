#include "play_file.h"

#include <chrono>
#include <cstdlib>
#include <exception>
#include <iostream>

#include "player.h"
#include "report.h"
#include "script.h"
#include "stage.h"
#include "watchdog.h"
#include "world.h"

namespace benevix {
namespace {

constexpr std::chrono::seconds kLongest(60);

void PlayInWorld(const std::vector<ScriptLine>& script, const FaceMaker& makeFace, Report& report) {
  World world;
  const std::unique_ptr<Face> face = makeFace(world.boxes);
  Stage stage(world, *face);
  Play(script, stage, report);
}

}  // namespace

int PlayFile(const std::string& file, const FaceMaker& makeFace) {
  Report report(file);
  try {
    const std::vector<ScriptLine> script = ReadScript(file);
    const Watchdog watchdog(kLongest, [&] {
      report.Fail("the script to end within " + std::to_string(kLongest.count()) + " seconds,",
                  "no end");
      report.PrintCounts();
      std::_Exit(kExitFailed);
    });
    PlayInWorld(script, makeFace, report);
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
