#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "player/line_kinds.h"

namespace benevix {

struct ScriptLine {
  int number = 0;  // from 1
  const LineKind* kind = nullptr;
  std::vector<std::string> words;  // behind the command
};

// A script that cannot be read: "FILE:LINE: reason", "FILE: reason" when no line is to blame.
class UnreadableScript : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Reads a script file. Raises UnreadableScript.
std::vector<ScriptLine> ReadScript(const std::string& file);

}  // namespace benevix
