#pragma once

#include "../recording_boxes.h"
#include "../sample_list.h"
#include "core/messages.h"
#include "forms/frmYtdTag.h"
#include "help/information_viewer.h"
#include "player/world.h"
#include "server/server_files.h"

namespace benevix {

// What the modules stand on that read the server's answers. Nothing travels here: it answers
// everything with the same text.
struct Served : HttpClient, Waits {
  explicit Served(std::string_view text) : answer(text) {
    desk.Add(main);
    desk.Add(info);
    desk.Add(yearToDate);
    boxes.answer = BoxAnswer::Yes;
    main.ListView1 = SampleList();
    main.ListView1.selected = 2;
  }
  std::string OpenURL(const std::string& /*address*/, const HttpOptions& /*options*/) override {
    return answer;
  }
  void Cancel() override {}
  void Begin() override {}
  void End() override {}
  void DoEvents() override {}

  // Its folder serves all inputs.
  static World& TheWorld() {
    static World world;
    return world;
  }

  std::string answer;
  World& world = TheWorld();
  frmBVX main;
  frmInfo info;
  frmYtdTag yearToDate;
  FeeRates rates;
  RunValues run;
  EventTable events;
  Desk desk{events};
  RecordingBoxes boxes;
  Environment environment{world.info,  world.settings, *this,       boxes,       *this,
                          world.clock, world.random,   world.shell, world.files, world.printer};
  ServerFiles server{environment, main, rates, run};
  Messages messages{boxes, world.info, run};
  InformationViewer viewer{info, desk, messages, environment};
};

}  // namespace benevix
