#pragma once

#include <string>

namespace benevix {

// A process's memory in bytes.
struct Memory {
  double resident = 0;      // resident set size, including shared libraries
  double proportional = 0;  // proportional set size: shared pages divided by their users
};

// `process` is a process ID or "self". Raises std::runtime_error when there is no such process.
Memory MemoryOf(const std::string& process);

}  // namespace benevix
