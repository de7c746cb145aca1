#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace benevix {

// Tells what the mouse does over a widget that tells nothing of it itself. A click is the left
// button pressed and released over the widget; it is not also one of the panel below the widget.
class MouseFilter : public QObject {
 public:
  MouseFilter(QWidget& widget, std::function<void()> onClick,
              std::function<void()> onMove = nullptr);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& widget_;
  std::function<void()> onClick_;
  std::function<void()> onMove_;
  bool pressed_ = false;
};

}  // namespace benevix
