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

// The program's configuration file of this name, benevix/NAME: the user's, and the one in the first
// of the machine's folders ($XDG_CONFIG_DIRS, or /etc/xdg) that has it. Where none has it, the
// machine's is in the first folder.
std::string UserConfigFile(const std::string& name);
std::string MachineConfigFile(const std::string& name);
inline constexpr auto kSettingsName = "benevix.conf";

}  // namespace benevix
