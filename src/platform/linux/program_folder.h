#pragma once

#include <string>

namespace benevix {

// The running program's file, absolute. Raises RuntimeError when the system does not tell.
std::string ExecutablePath();

// The folder of the files that came with an executable: deployment.ini and the folder Resources.
// When Resources stands beside the executable it is the executable's own folder; otherwise, as a
// package lays them out, it is ../share/benevix. No slash at the end.
std::string InstalledFolder(const std::string& executable);

// The program folder for an executable, which the user can write: the executable's own folder when
// Resources stands there and both can be written, otherwise "benevix" in the user's data folder. No
// slash at the end; makes nothing.
std::string ProgramFolder(const std::string& executable);

}  // namespace benevix
