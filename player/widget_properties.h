#pragma once

#include <QString>
#include <QWidget>
#include <optional>
#include <string>

#include "mirror/mirror/window_binding.h"
#include "player/front_end.h"

namespace benevix {

// What a widget shows as its text.
QString WidgetText(const QWidget& widget);

// A property as the widgets show it: texts, captions, tool tips, chosen and checked marks, states,
// colours, lists, menus and scroll bars. The rest, and windows that do not stand on the screen, are
// read from the structs.
std::optional<std::string> ReadWidgetProperty(Program& program, WindowBinding* binding,
                                              const Target& target, const std::string& property,
                                              Scheme scheme);

}  // namespace benevix
