#include "shown.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>
#include <iostream>

namespace benevix {
namespace {

class FirstPaint : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    if (qobject_cast<QMainWindow*>(watched) == nullptr) return false;
    qApp->removeEventFilter(this);
    // The event loop comes round again when the whole window is painted.
    QTimer::singleShot(0, qApp, [] {
      std::cout << "shown" << std::endl;
      // Whoever looks at this process's memory closes its input when he has seen enough.
      while (std::cin.get() != std::char_traits<char>::eof()) continue;
      // Not quit(), which a window that answers its closing itself would hold up.
      QCoreApplication::exit();
    });
    return false;
  }
};

}  // namespace

void TellWhenShown() {
  qApp->installEventFilter(new FirstPaint(qApp));
}

}  // namespace benevix
