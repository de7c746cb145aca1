#include "mirror/look/note_bubble.h"

#include <QAccessible>
#include <algorithm>

namespace benevix {
namespace {

// In pixels.
constexpr int kGap = 2;     // between the widget and the note
constexpr int kMargin = 4;  // between the note and the edge of the window
constexpr int kWidest = 320;

void Announce(QWidget& widget, const QString& note) {
  widget.setAccessibleDescription(note);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  if (!note.isEmpty()) {
    QAccessibleAnnouncementEvent event(&widget, note);
    QAccessible::updateAccessibility(&event);
  }
#endif
}

}  // namespace

NoteBubble::NoteBubble(QWidget& window) : QLabel(&window) {
  setProperty("look", "bubble");
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setIndent(0);  // the frame is all the room around the text, as Place counts it
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void NoteBubble::ShowAt(QWidget& widget, const QString& note) {
  if (NoteOf(widget) != note) {
    Dismiss();
    widget_ = &widget;
    setText(note);
    Announce(widget, note);
  }
  Place(widget);
  show();
  raise();
}

void NoteBubble::Dismiss() {
  if (widget_) Announce(*widget_, QString());
  widget_.clear();
  hide();
}

QString NoteBubble::NoteOf(const QWidget& widget) const {
  return widget_ == &widget ? text() : QString();
}

void NoteBubble::Place(const QWidget& widget) {
  ensurePolished();
  const QRect room = parentWidget()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const int frame = width() - contentsRect().width();
  const int line = fontMetrics().horizontalAdvance(text()) + 2 * kGap + frame;
  const int wide = std::min({line, kWidest, room.width()});
  resize(wide, heightForWidth(wide));
  QPoint place = widget.mapTo(parentWidget(), QPoint(0, widget.height() + kGap));
  if (place.y() + height() > room.bottom()) place.ry() -= widget.height() + height() + 2 * kGap;
  move(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - wide)),
       std::max(place.y(), room.top()));
}

}  // namespace benevix
