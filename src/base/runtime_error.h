#pragma once

#include <stdexcept>
#include <string>

namespace benevix {

// The program's only error type, caught by the code that is responsible for the failed operation.
class RuntimeError : public std::runtime_error {
 public:
  explicit RuntimeError(const std::string& what) : std::runtime_error(what) {}
};

// Thrown to end the program at once. Not a RuntimeError, so that no error handler stops it; caught
// only where events are dispatched.
struct ProgramEnded {};

}  // namespace benevix
