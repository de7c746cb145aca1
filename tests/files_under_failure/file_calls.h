#pragma once

#include <string>

namespace benevix {

enum class Fault {
  None,
  Kill,      // of the process, in the middle of the call
  Failure,   // of this call alone
  FullDisk,  // from this call on: what needs room on the disk fails
};

// The calls of this thread on files below a folder. While they are watched they are counted, and
// the fault comes at the call with the number `at`. In the background the program only reads, and
// what fails there is read once more in the foreground.
struct FileCalls {
  bool watched = false;
  std::string folder;
  long at = 0;
  Fault fault = Fault::None;
  long count = 0;
};
extern thread_local FileCalls fileCalls;

inline constexpr int kKilled = 99;  // the exit code of a killed process

}  // namespace benevix
