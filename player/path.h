#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace benevix {

// A part of a path: a name, with a number in brackets or without.
struct PathPart {
  std::string name;
  int index = -1;  // -1 without brackets
};

// Takes a path such as frmBVX.Text1(2).Text apart at its points. Raises CannotBeDone when it is no
// path.
std::vector<PathPart> PathParts(std::string_view path);

}  // namespace benevix
