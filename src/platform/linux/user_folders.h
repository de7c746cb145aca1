#pragma once

#include <string>
#include <vector>

namespace benevix {

// The user's base folders, from the XDG base directories
// of freedesktop.org: the variable when it holds an absolute
// path, otherwise its default. No slash at the end.

std::string HomeFolder();
std::string DataFolder();    // $XDG_DATA_HOME, ~/.local/share
std::string ConfigFolder();  // $XDG_CONFIG_HOME, ~/.config

// The system's data folders, the first counts most: $XDG_DATA_DIRS, /usr/local/share and
// /usr/share.
std::vector<std::string> SystemDataFolders();

}  // namespace benevix
