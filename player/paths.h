#pragma once

#include <string>

#include "player/front_end.h"

namespace benevix {

// What a path such as frmBVX.Text1(2).Text names.
struct Named {
  Target target;
  std::string property;  // empty without one
};

// Raises CannotBeDone when it is no path, or there is no such window or control.
Named Find(Program& program, const std::string& path);

// The control that a path without a property names.
Target FindControl(Program& program, const std::string& path);

// The control's name as scripts write it: Text1(2).
std::string NameOf(const NamedControl& control);

// Why the user cannot use it now.
std::string WhyNot(Program& program, const Target& target);

}  // namespace benevix
