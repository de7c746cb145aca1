#include "mirror/mirror/window_place.h"

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>

namespace benevix {
namespace {

constexpr int kGap = 8;  // pixels between a window and its neighbour

// What the desktop draws around a window; before one is on the screen, room for a usual frame.
QMargins FrameOf(const QWidget* shown) {
  constexpr QMargins usual(4, 40, 4, 4);
  const QMargins frame = shown != nullptr ? shown->windowHandle()->frameMargins() : QMargins();
  return frame.isNull() ? usual : frame;
}

}  // namespace

QSize RoomOnScreen(const QWidget& window) {
  return window.screen()->availableGeometry().marginsRemoved(FrameOf(nullptr)).size();
}

QRect Inside(QRect place, const QRect& screen) {
  place.moveRight(std::min(place.right(), screen.right()));
  place.moveBottom(std::min(place.bottom(), screen.bottom()));
  place.moveLeft(std::max(place.left(), screen.left()));
  place.moveTop(std::max(place.top(), screen.top()));
  return place;
}

QRect Beside(QSize size, const QRect& neighbour, const QRect& screen) {
  QRect place(neighbour.topRight() + QPoint(1 + kGap, 0), size);
  if (place.right() > screen.right()) {
    place.moveTopLeft(neighbour.bottomLeft() + QPoint(0, 1 + kGap));
  }
  if (place.bottom() > screen.bottom()) {
    place.moveBottomRight(neighbour.bottomLeft() - QPoint(1 + kGap, 0));
  }
  return Inside(place, screen);
}

bool PlaceAgain(QWidget& window, QPoint place) {
  const QScreen* const screen = QGuiApplication::screenAt(place);
  if (screen == nullptr) return false;
  if (!window.isMaximized()) {
    window.setGeometry(Inside(QRect(place, window.size()), screen->availableGeometry()));
  }
  return true;
}

void PlaceWindow(QWidget& window, QPoint place, const QWidget* parent, const QWidget* neighbour) {
  if (window.isMaximized()) return;
  const QRect screen = (parent != nullptr ? *parent : window).screen()->availableGeometry();
  if (window.layout() != nullptr) window.layout()->activate();  // sets the size that it fixes
  if (parent != nullptr) window.resize(window.size().boundedTo(RoomOnScreen(*parent)));
  QRect whole(place, window.size().grownBy(FrameOf(parent)));
  if (neighbour != nullptr) {
    const QRect beside(neighbour->mapToGlobal(QPoint()), neighbour->size());
    whole = Beside(whole.size(), beside, screen);
  } else if (place.isNull()) {
    whole.moveCenter(parent != nullptr ? parent->geometry().center() : screen.center());
  }
  window.move(Inside(whole, screen).topLeft());
}

}  // namespace benevix
