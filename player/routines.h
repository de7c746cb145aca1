#pragma once

#include <optional>
#include <string>
#include <vector>

namespace benevix {

class Stage;

// The result of one of the program's routines as text; nothing when it raises an error. Raises
// CannotBeDone when there is no such routine or it takes other arguments.
std::optional<std::string> CallRoutine(Stage& stage, const std::string& routine,
                                       const std::vector<std::string>& arguments);

}  // namespace benevix
