#pragma once

#include <optional>

namespace benevix {

// What the program does without a window and without a display, by its command line: it tells of
// itself, or writes the gifts of a range of days to a file. Gives the exit status: 0, 1 when that
// could not be done, 2 for a command line that cannot be read, whose reasons go to standard error;
// nothing when no command is asked for.
std::optional<int> RunCommand(int argc, char** argv);

}  // namespace benevix
