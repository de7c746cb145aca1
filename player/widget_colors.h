#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "controls/directory.h"
#include "mirror/look/theme.h"

namespace benevix {

// A colour or fill style as the widget draws it: the struct's own where that is what the theme
// draws for it, else the colour on the screen. Nothing for any other property.
std::optional<std::string> ReadWidgetColor(const NamedControl& control, QWidget& widget,
                                           const std::string& property, Scheme scheme);

}  // namespace benevix
