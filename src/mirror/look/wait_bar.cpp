#include "mirror/look/wait_bar.h"

#include <QPainter>
#include <QPainterPath>
#include <QTimerEvent>

namespace benevix {
namespace {

constexpr int kHeight = 8;  // pixels
constexpr int kPixelsPerStep = 6;
constexpr int kMillisecondsPerStep = 40;

}  // namespace

WaitBar::WaitBar(QWidget* parent) : QProgressBar(parent) {
  setFixedHeight(kHeight);
}

QSize WaitBar::sizeHint() const {
  return {120, kHeight};
}

void WaitBar::paintEvent(QPaintEvent* /*event*/) {
  constexpr double radius = kHeight / 2.0;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath bar;
  bar.addRoundedRect(rect(), radius, radius);
  painter.fillPath(bar, palette().color(QPalette::Midlight));
  painter.setClipPath(bar);
  const auto [begin, length] = Filled();
  QPainterPath filled;
  filled.addRoundedRect(begin, 0, length, kHeight, radius, radius);
  painter.fillPath(filled, palette().color(QPalette::Highlight));
}

std::pair<int, int> WaitBar::Filled() const {
  if (IsKnown()) return {0, width() * (value() - minimum()) / (maximum() - minimum())};
  const int length = width() / 3;
  return {(length + step_ * kPixelsPerStep) % (width() + length) - length, length};
}

void WaitBar::showEvent(QShowEvent* event) {
  QProgressBar::showEvent(event);
  timer_.start(kMillisecondsPerStep, this);
}

void WaitBar::hideEvent(QHideEvent* event) {
  timer_.stop();
  QProgressBar::hideEvent(event);
}

void WaitBar::timerEvent(QTimerEvent* event) {
  if (event->timerId() != timer_.timerId()) return QProgressBar::timerEvent(event);
  ++step_;
  if (!IsKnown()) update();
}

}  // namespace benevix
