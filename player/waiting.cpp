#include "player/waiting.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QImage>
#include <QPointer>
#include <QUrl>
#include <QWidget>

namespace benevix {
namespace {

constexpr int kPatience = 30'000;  // milliseconds
constexpr int kPause = 200;        // milliseconds between two looks

void LetEventsRun(int milliseconds) {
  const QDeadlineTimer end(milliseconds);
  while (!end.hasExpired()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
  }
}

bool IsBlank(const QImage& picture) {
  constexpr int step = 3;  // pixels
  for (int y = 0; y < picture.height(); y += step) {
    for (int x = 0; x < picture.width(); x += step) {
      if (picture.pixel(x, y) != picture.pixel(0, 0)) return false;
    }
  }
  return true;
}

}  // namespace

bool WaitUntil(const std::function<bool()>& done) {
  const QDeadlineTimer end(kPatience);
  while (!done()) {
    if (end.hasExpired()) return false;
    LetEventsRun(kPause);
  }
  return true;
}

bool WaitForPage(QWidget& window) {
  const QPointer<QWidget> page(window.findChild<QWidget*>(QStringLiteral("wb1")));
  QImage before;
  return WaitUntil([&] {
    if (!page || !page->isVisible()) return true;
    const QImage now = page->grab().toImage();
    const bool stands = now == before && !IsBlank(now);
    before = now;
    return stands;
  });
}

bool LeadPage(const QWidget& viewer, const QUrl& address, const std::function<bool()>& arrived) {
  // By its name: the page's engine is a plug-in.
  for (QWidget* const page : viewer.findChildren<QWidget*>()) {
    if (!page->inherits("QWebEngineView")) continue;
    page->setProperty("url", address);
    return WaitUntil(arrived);
  }
  return false;
}

}  // namespace benevix
