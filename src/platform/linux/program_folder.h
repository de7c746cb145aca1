#pragma once

#include <string>

namespace benevix {

// The running program's file, absolute. Raises RuntimeError when the system does not tell.
std::string ExecutablePath();

// The program folder for an executable, without a slash at the end: the executable's own folder
// when it can be written, otherwise "benevix" in the user's data folder. There the first start
// makes a copy of the installed Resources, all of it or nothing; later starts leave it alone.
// Raises RuntimeError when the copy cannot be made.
std::string ProgramFolder(const std::string& executable);

}  // namespace benevix
