#pragma once

#include <QColor>

#include "mirror/look/theme.h"

namespace benevix {

// A colour of the theme in both schemes.
struct Tone {
  QRgb light, dark;
};

// Every text colour reaches a contrast of 4.5 to 1 on each of the grounds it is drawn on.
namespace tone {
constexpr Tone kWindow{0xf3f5f7, 0x1d2227};  // ground of the windows
constexpr Tone kBase{0xffffff, 0x15191d};    // ground of boxes, lists and cards
constexpr Tone kFace{0xffffff, 0x2b3239};    // buttons
constexpr Tone kHover{0xe9edf0, 0x363f48};   // button under the mouse
constexpr Tone kLine{0xd5dbe1, 0x343c45};    // borders that only divide
constexpr Tone kEdge{0x7f8b97, 0x6b7784};    // borders that can be pressed or typed in
constexpr Tone kText{0x1b252e, 0xe6eaee};
constexpr Tone kMuted{0x4e5964, 0xa3adb8};  // less important text, disabled text
constexpr Tone kAccent{0x0b6e69, 0x58c4ba};
constexpr Tone kAccentHover{0x095a56, 0x7ad4cb};
constexpr Tone kOnAccent{0xffffff, 0x0b1f1d};  // text on the accent
constexpr Tone kTint{0xd9eeec, 0x163a38};      // the guidance line's ground
constexpr Tone kOnTint{0x083f3c, 0xd2f1ee};
constexpr Tone kGiven{0xe6eaee, 0x2e353c};     // ground of boxes that no longer take an entry
constexpr Tone kComputed{0xe8f1f1, 0x1c3030};  // ground of the Balance
constexpr Tone kSand{0xfaf9f3, 0x1b1c1a};      // ground of the fee modes
constexpr Tone kMarked{0xfbe3a6, 0x544418};    // ground of a word that was searched for
constexpr Tone kRed{0xb3201b, 0xff8f88};
constexpr Tone kGreen{0x1f8f45, 0x4fc27a};
constexpr Tone kLit{0xc47400, 0xffb84d};      // the news indicator with news
constexpr Tone kService{0xb86a00, 0xf0ad4e};  // parts of the money bar, beside the accent
constexpr Tone kMethod{0x7b4fa0, 0xc39be0};
constexpr Tone kLeft{0xb9c4ce, 0x55616d};
}  // namespace tone

[[nodiscard]] inline QColor ColorOf(const Tone& tone, Scheme scheme) {
  return scheme == Scheme::Light ? tone.light : tone.dark;
}

}  // namespace benevix
