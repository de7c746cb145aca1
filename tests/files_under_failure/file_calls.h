#pragma once

#include <string>

namespace benevix {

// The calls of this process on files below a folder. While they are watched they are counted, and
// the call with the number `at` fails, or kills the process in its middle.
struct FileCalls {
  bool watched = false;
  std::string folder;
  long at = 0;
  bool kills = false;
  long count = 0;
};
extern FileCalls fileCalls;

inline constexpr int kKilled = 99;  // the exit code of a killed process

}  // namespace benevix
