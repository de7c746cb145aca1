#pragma once

#include <string>

namespace benevix {

// The absolute path of the running executable. Raises RuntimeError when /proc is not available.
std::string ExecutablePath();

// The folder with the installed deployment.ini and Resources: the executable's own folder when it
// contains Resources, otherwise share/benevix of the prefix. No slash at the end.
std::string InstalledFolder(const std::string& executable);

// The deployment.ini that counts: the machine's own (user_folders.h), else the installed one. A
// folder that runs where it stands has its own.
std::string DeploymentFile(const std::string& executable);

// The folder of the files that the program reads and writes: the executable's own folder when it
// contains Resources and both are writable, otherwise "benevix" in the user's data folder, which
// this does not create. No slash at the end.
std::string ProgramFolder(const std::string& executable);

}  // namespace benevix
