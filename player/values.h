#pragma once

#include <optional>
#include <string>

#include "program/program.h"

namespace benevix {

// A program-wide value by its name; nothing when there is none of that name.
std::optional<std::string> ReadValue(const Program& program, const std::string& name);

}  // namespace benevix
