#pragma once

#include <string>

namespace benevix {

// Controls are plain data that any code may read and write; writing raises no event.
struct Control {
  bool enabled = true;
  bool visible = true;
  std::string toolTip;
  std::string tag;
  // The frame, picture box or menu of the same window that holds it; none when empty. What is held
  // can be used only while its holder can.
  const char* holder = "";
};

}  // namespace benevix
