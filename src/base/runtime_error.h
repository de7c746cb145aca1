#pragma once

#include <stdexcept>
#include <string>

namespace benevix {

// The one error type of the program. The place that owns a failure catches it.
class RuntimeError : public std::runtime_error {
 public:
  explicit RuntimeError(const std::string& what) : std::runtime_error(what) {}
};

// Thrown when the program stops at once. No failure, so no handler of RuntimeError holds it up;
// caught only where an event enters.
struct ProgramEnded {};

}  // namespace benevix
