#pragma once

#include <string>

#include "player/front_end.h"

namespace benevix {

// A path, looked up: the window or control it names, and the property behind it.
struct Named {
  Target target;
  std::string property;  // empty without one
};

// Raises CannotBeDone when there is no such window or control.
Named Find(Program& program, const std::string& path);

// The control that a path without a property names.
Target FindControl(Program& program, const std::string& path);

// The window's or control's name as scripts write it: Text1(2).
std::string NameOf(const NamedControl& control);

// Why the user cannot do anything with it now.
std::string WhyNot(Program& program, const Target& target);

}  // namespace benevix
