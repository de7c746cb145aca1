#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace benevix {

// Controls are plain data that any code may read and write; writing raises no event.
struct Control {
  Control() = default;
  explicit Control(std::string tip, const char* heldBy = "")
      : toolTip(std::move(tip)), holder(heldBy) {}

  bool enabled = true;
  bool visible = true;
  std::string toolTip;
  std::string tag;  // what the program keeps with the control, never shown
  // Why the user's last key or entry was not taken as he meant it. It goes when he changes the
  // text (what a refused character has said: when he empties the box), when the program writes it,
  // and when the focus of the window moves, unless the key that moves it brings the note.
  std::string note;
  // The note when a character is refused: what the box takes.
  const char* takes = "Western European letters and signs only";
  // A click on it ends a request, in its own way, so it is taken while the program waits for one.
  bool endsRequests = false;
  // The frame, picture box or menu of the same window that holds it; none when empty. What is held
  // can be used only while its holder can.
  const char* holder = "";
  // The key that does what a click on it does, or goes to a box or list: "Ctrl+N"; none when empty.
  // Of a button or picture it may be kEnterShortcut or kEscapeShortcut: what Enter and Escape
  // press.
  const char* shortcut = "";
};

// What the box of a name takes.
inline constexpr const char* kNameTakes = "No comma, and Western European letters only";

inline constexpr const char* kEnterShortcut = "Enter";
inline constexpr const char* kEscapeShortcut = "Esc";

// Whether a click on it is taken while the program waits for a request, which it ends. What Escape
// presses does so then, as Escape itself does.
[[nodiscard]] inline bool EndsRequests(const Control& control) {
  return control.endsRequests || std::string_view(control.shortcut) == kEscapeShortcut;
}

}  // namespace benevix
