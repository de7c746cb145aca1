#pragma once

#include <map>
#include <string>
#include <vector>

namespace benevix {

// Source texts by path from the project's folder: "src/base/text.h".
using SourceTree = std::map<std::string, std::string>;

// What breaks the rules of the house, one line each: an include that runs up a floor, files that
// include each other in a circle, the toolkit outside its rooms, a room without a floor. Generated
// and library headers are not followed.
std::vector<std::string> LayerFaults(const SourceTree& tree);

}  // namespace benevix
