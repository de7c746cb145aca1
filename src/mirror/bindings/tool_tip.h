#pragma once

#include <QPoint>

#include "controls/control.h"

class QWidget;

namespace benevix {

// Shows a control's tool tip with its shortcut behind it, or its shortcut alone. False, and nothing
// is shown, for a control without a shortcut: its tip is the toolkit's to show.
bool ShowTipWithShortcut(const Control& control, QWidget& widget, const QPoint& globalPlace);

}  // namespace benevix
