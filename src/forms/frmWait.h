#pragma once

#include "controls/controls.h"

namespace benevix {

// The please-wait window. Its timer closes it if nothing else does.
struct frmWait : Window {
  static constexpr const char* kName = "frmWait";

  frmWait() {
    caption = " Contacting Remote Server";
    closesByEscape = false;
    endsRequests = Command1.endsRequests = true;
    Command1.visible = false;
    Command1.shortcut = kEscapeShortcut;
  }

  Label Label2{"Retrieving Information. Please wait..."};
  ProgressBar ProgressBar1;
  Button Command1{"Cancel", "Stop waiting for the server"};  // only while there is a request
  Timer Timer1{1000, true};
};

template <class F>
void visit(frmWait& window, F&& f) {
  f("Label2", window.Label2);
  f("ProgressBar1", window.ProgressBar1);
  f("Command1", window.Command1);
  f("Timer1", window.Timer1);
}

}  // namespace benevix
