#pragma once

#include <string>

namespace benevix {

// Fills the user's program folder from the installed one, at every start. Each installed file of
// Resources that the user does not have becomes a link to it, so that a start finishes what an
// earlier one left half done, an upgrade is seen at once, and what the program writes anew is the
// user's. The user's own organization list stays while the installed one is not newer; then it is
// replaced by a link to that one. Raises RuntimeError that names the file when the folder cannot be
// filled.
void FillUsersFolder(const std::string& installed, const std::string& folder);

}  // namespace benevix
