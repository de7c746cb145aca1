#pragma once

#include <functional>

#include "platform/qt/qt_http_client.h"
#include "player/world.h"
#include "program/program.h"
#include "recording_boxes.h"

namespace benevix {

// Calls `watch` whenever the real front end would update its windows.
class WatchedWaits : public Waits {
 public:
  void Begin() override { watch(); }
  void End() override {}
  void DoEvents() override { watch(); }

  std::function<void()> watch = [] {};
};

// The program with a list of one organization and a server that is up.
struct ProgramFixture {
  explicit ProgramFixture(Printer* printer = nullptr)
      : program({world.info, world.settings, http, boxes, waits, world.clock, world.random,
                 world.shell, world.files, printer == nullptr ? world.printer : *printer}) {
    world.files.Replace(world.info.Resource("sharedb.dat"),
                        ";QUORL1.0000\r\n[Kenya]\r\n00000042 Water For All, Relief\r\n");
    world.site.Put("53rv3r/status.txt", {.text = "server ok"});
    world.settings.Put("user", "ShowWiz", "False");
  }
  // Starts the program and closes the splash window.
  void Enter() {
    program.Main();
    program.TheInput().Click(program.TheForms().Get<frmSplash>().Image2[0]);
  }

  World world;
  WatchedWaits waits;
  QtHttpClient http{waits};
  RecordingBoxes boxes;
  Program program;
};

}  // namespace benevix
