#pragma once

#include <string>

namespace benevix {

// A process's memory in bytes.
struct Memory {
  double resident = 0;      // all that it sees, shared libraries too
  double proportional = 0;  // with its share of what several processes see
};

// `process` is a number, or "self".
Memory MemoryOf(const std::string& process);

}  // namespace benevix
