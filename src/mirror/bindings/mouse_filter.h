#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace benevix {

// The mouse over a widget that has no signals for it. A click is the left button pressed and
// released over the widget; it is not also a click on the panel that holds the widget.
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
