#pragma once

#include <string>

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "forms/frmInfo.h"

namespace benevix {

// The information viewer's own handlers.
class InformationViewer {
 public:
  InformationViewer(frmInfo& info, frmBVX& main) : info_(info), main_(main) {}

  void Form_Load();
  void VScroll1_Scroll();
  // The main window repaints.
  void Form_Unload();

 private:
  frmInfo& info_;
  frmBVX& main_;
};

}  // namespace benevix
