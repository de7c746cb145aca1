#include "mirror/bindings/mouse_filter.h"

#include <QMouseEvent>
#include <QWidget>
#include <utility>

namespace benevix {

MouseFilter::MouseFilter(QWidget& widget, std::function<void()> onClick,
                         std::function<void()> onMove)
    : widget_(widget), onClick_(std::move(onClick)), onMove_(std::move(onMove)) {
  widget.installEventFilter(this);
  if (onMove_) widget.setMouseTracking(true);
}

bool MouseFilter::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) pressed_ = true;
  if (event->type() == QEvent::MouseMove && onMove_) onMove_();
  if (event->type() != QEvent::MouseButtonRelease || !std::exchange(pressed_, false)) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(*event);
  const bool clicked =
      mouse.button() == Qt::LeftButton && widget_.rect().contains(mouse.position().toPoint());
  if (clicked) onClick_();
  return clicked;
}

}  // namespace benevix
