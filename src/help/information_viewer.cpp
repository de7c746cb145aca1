#include "help/information_viewer.h"

namespace benevix {

void InformationViewer::Form_Load() {
  info_.MeasureText();
  info_.topmost = true;
}

void InformationViewer::VScroll1_Scroll() {
  info_.MeasureText();  // the window may have been made narrower since
  info_.Label1.top = -info_.VScroll1.value;
}

void InformationViewer::Form_Unload() {
  info_.wb1.visible = false;
  main_.Line2.visible = false;
  main_.Line2.visible = true;
}

}  // namespace benevix
