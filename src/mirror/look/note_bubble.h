#pragma once

#include <QLabel>
#include <QPointer>

namespace benevix {

// A small note beside one widget of a window, over what stands there: it takes no room in the
// layout and no clicks. Screen readers read it as the widget's description.
class NoteBubble : public QLabel {
 public:
  explicit NoteBubble(QWidget& window);

  // Below the widget, or above it where the window ends; inside the window.
  void ShowAt(QWidget& widget, const QString& note);
  void Dismiss();

  // What it says of the widget; empty when it stands elsewhere or nowhere.
  [[nodiscard]] QString NoteOf(const QWidget& widget) const;

 private:
  void Place(const QWidget& widget);

  QPointer<QWidget> widget_;
};

}  // namespace benevix
