#pragma once

#include <string>
#include <vector>

namespace benevix {

// The user's folders by the XDG base directories of freedesktop.org: the variable's value when it
// is an absolute path, otherwise its default. No slash at the end.

std::string HomeFolder();
std::string DataFolder();    // $XDG_DATA_HOME, ~/.local/share
std::string ConfigFolder();  // $XDG_CONFIG_HOME, ~/.config

// The system's data folders in order of preference: $XDG_DATA_DIRS, or /usr/local/share and
// /usr/share.
std::vector<std::string> SystemDataFolders();

}  // namespace benevix
