#pragma once

namespace benevix {

// Whether the program runs with the rights of the system's administrator.
bool RunsAsAdministrator();

}  // namespace benevix
