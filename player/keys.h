#pragma once

namespace benevix {

// The keys that a script names; any other key is its character.
inline constexpr const char* kEnterKey = "Enter";
inline constexpr const char* kTabKey = "Tab";
inline constexpr const char* kEscapeKey = "Escape";
inline constexpr const char* kBackspaceKey = "Backspace";

}  // namespace benevix
