#pragma once

#include <functional>

#include "boxes_of_a_test.h"
#include "platform/qt/qt_http_client.h"
#include "player/world.h"
#include "program/program.h"

namespace benevix {

// Tells when the windows would be brought into line.
class WatchedWaits : public Waits {
 public:
  void Begin() override { watch(); }
  void End() override {}
  void DoEvents() override { watch(); }

  std::function<void()> watch = [] {};
};

// The program in a world with one organization and a server that is up.
struct ProgramOfATest {
  explicit ProgramOfATest(Printer* printer = nullptr)
      : program({world.info, world.settings, http, boxes, waits, world.clock, world.random,
                 world.shell, world.files, printer == nullptr ? world.printer : *printer}) {
    world.files.Replace(world.info.Resource("sharedb.dat"),
                        ";QUORL1.0000\r\n[Kenya]\r\n00000042 Water For All, Relief\r\n");
    world.site.Put("53rv3r/status.txt", {.text = "server ok"});
    world.settings.Put("user", "ShowWiz", "False");
  }
  // Starts the program and passes its splash.
  void Enter() {
    program.Main();
    program.TheInput().Click(program.TheForms().Get<frmSplash>().Image2[0]);
  }

  World world;
  WatchedWaits waits;
  QtHttpClient http{waits};
  BoxesOfATest boxes;
  Program program;
};

}  // namespace benevix
