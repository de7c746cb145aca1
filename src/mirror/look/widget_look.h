#pragma once

#include <QMargins>
#include <QString>

#include "mirror/look/theme.h"

class QLineEdit;
class QWidget;

namespace benevix {

// The property of a widget that says which of the theme's looks it has; set in the drawings.
inline constexpr auto kLook = "look";
[[nodiscard]] QString LookOf(const QWidget& widget);

// Gives a widget what its look has apart from being painted: font, colours, least and greatest
// sizes, room around its text. May be called again for another look or scheme.
void GiveLook(QWidget& widget, Scheme scheme);

// The room between an edit's frame and its text, in pixels.
[[nodiscard]] QMargins PaddingOf(const QLineEdit& edit);

}  // namespace benevix
