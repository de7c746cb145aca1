#pragma once

#include <string>

#include "controls/desk.h"
#include "online/ui/frmInfo.h"
#include "session/ui/frmBVX.h"

namespace benevix {

// The information viewer's own handlers.
class InfoViewer {
 public:
  InfoViewer(frmInfo& info, frmBVX& main) : info_(info), main_(main) {}

  void Form_Load();
  void VScroll1_Scroll();
  // The main window repaints.
  void Form_Unload();

 private:
  frmInfo& info_;
  frmBVX& main_;
};

}  // namespace benevix
