#pragma once

#include <QRect>

class QWidget;

namespace benevix {

// Places a window that is about to be shown inside the free area of its screen: beside the
// neighbour, if there is one; else at `place`, if that is not null; else over the middle of its
// parent or, without one, of the screen. One with a parent is made no larger than the screen. A
// maximized window is left to the desktop.
void PlaceWindow(QWidget& window, QPoint place, const QWidget* parent, const QWidget* neighbour);

// Places a window that is about to be shown where it stood before: `place` is the corner of what
// the frame surrounds, which desktops keep more exactly than the frame's. Gives false when that
// place is on no screen any more.
[[nodiscard]] bool PlaceAgain(QWidget& window, QPoint place);

// The largest size of a window that is about to be shown, so that it and its frame fit into the
// free area of the screen.
[[nodiscard]] QSize RoomOnScreen(const QWidget& window);

// A window of this size beside its neighbour: where the screen has room for it, to the right, else
// below, else to the left.
[[nodiscard]] QRect Beside(QSize size, const QRect& neighbour, const QRect& screen);

// Moved as little as needed to lie inside the screen; what is larger begins at its top left.
[[nodiscard]] QRect Inside(QRect place, const QRect& screen);

}  // namespace benevix
