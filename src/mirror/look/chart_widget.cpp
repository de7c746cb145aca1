#include "mirror/look/chart_widget.h"

#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>

#include "mirror/look/accessibility.h"

namespace benevix {
namespace {

// In pixels.
constexpr int kGap = 6;        // between a text and what it names
constexpr int kBarHeight = 8;  // of a share
constexpr int kWidest = 48;    // a column
constexpr double kRound = 3;   // radius of a column's upper corners

}  // namespace

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  MarkAsIndicator(*this);
}

void ChartWidget::SetMarks(bool areShares, std::vector<Mark> marks) {
  if (areShares_ == areShares && marks_ == marks) return;
  areShares_ = areShares;
  marks_ = std::move(marks);
  updateGeometry();
  update();
}

QSize ChartWidget::minimumSizeHint() const {
  const int line = fontMetrics().height();
  if (!areShares_) return {200, 5 * line};
  const int row = line + kBarHeight + kGap;
  return {200, std::max(1, static_cast<int>(marks_.size())) * row};
}

double ChartWidget::Largest() const {
  double largest = 0;
  for (const Mark& mark : marks_) largest = std::max(largest, mark.value);
  return largest;
}

QRectF ChartWidget::PlaceOf(std::size_t mark) const {
  const auto index = static_cast<double>(mark);
  if (areShares_) {
    const int row = fontMetrics().height() + kBarHeight + kGap;
    return {0, index * row, static_cast<double>(width()), static_cast<double>(row)};
  }
  const double wide = static_cast<double>(width()) / static_cast<double>(marks_.size());
  return {index * wide, 0, wide, static_cast<double>(height())};
}

void ChartWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (areShares_) {
    PaintShares(painter);
  } else {
    PaintColumns(painter);
  }
}

void ChartWidget::PaintColumns(QPainter& painter) const {
  const int line = fontMetrics().height();
  const double top = line + kGap, base = height() - line - kGap;
  const double largest = Largest();
  painter.fillRect(QRectF(0, base, width(), 1), palette().mid());
  if (largest <= 0) return;
  // The largest amount is the scale.
  painter.fillRect(QRectF(0, top, width(), 1), palette().mid());
  const auto scale = std::max_element(
      marks_.begin(), marks_.end(), [](const Mark& a, const Mark& b) { return a.value < b.value; });
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(QRectF(0, 0, width(), line), Qt::AlignLeft, scale->amount);
  // As many names as there is room for.
  int widest = 0;
  for (const Mark& mark : marks_) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(mark.name));
  }
  const double step = PlaceOf(0).width();
  const double shift = std::max((widest - step) / 2, 0.0);  // of the first and the last name
  const auto every = static_cast<std::size_t>(std::max((widest + kGap + shift) / step, 0.0)) + 1;
  for (std::size_t i = 0; i < marks_.size(); ++i) {
    const QRectF place = PlaceOf(i);
    const double wide = std::min<double>(place.width() * 0.7, kWidest);
    const double high = marks_[i].value / largest * (base - top);
    if (high > 0) {
      const QRectF bar(place.center().x() - wide / 2, base - std::max(high, 2.0), wide,
                       std::max(high, 2.0));
      QPainterPath path;
      path.setFillRule(Qt::WindingFill);
      path.addRoundedRect(bar, kRound, kRound);
      if (bar.height() > kRound) path.addRect(bar.adjusted(0, kRound, 0, 0));
      painter.fillPath(path, palette().highlight());
    }
    if (i % every != 0) continue;
    painter.setPen(palette().color(QPalette::WindowText));
    const double half = std::max(place.width(), static_cast<double>(widest)) / 2 + 1;
    // The first and the last name stay within the picture.
    const double middle = std::clamp(place.center().x(), half, std::max(half, width() - half));
    painter.drawText(QRectF(middle - half, base + kGap, 2 * half, line), Qt::AlignCenter,
                     marks_[i].name);
  }
}

void ChartWidget::PaintShares(QPainter& painter) const {
  const int line = fontMetrics().height();
  double whole = 0;
  for (const Mark& mark : marks_) whole += mark.value;
  for (std::size_t i = 0; i < marks_.size(); ++i) {
    const QRectF place = PlaceOf(i);
    const Mark& mark = marks_[i];
    const int amount = fontMetrics().horizontalAdvance(mark.amount);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRectF text(0, place.top(), width(), line);
    painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter, mark.amount);
    painter.drawText(
        text, Qt::AlignLeft | Qt::AlignVCenter,
        fontMetrics().elidedText(mark.name, Qt::ElideRight, width() - amount - 2 * kGap));
    QPainterPath track;
    track.addRoundedRect(QRectF(0, place.top() + line, width(), kBarHeight), kBarHeight / 2.0,
                         kBarHeight / 2.0);
    painter.save();
    painter.setClipPath(track);
    painter.fillPath(track, palette().mid());
    if (mark.value > 0) {
      const double wide = std::max(mark.value / whole * width(), 3.0);
      painter.fillRect(QRectF(0, place.top() + line, wide, kBarHeight), palette().highlight());
    }
    painter.restore();
  }
}

bool ChartWidget::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  for (std::size_t i = 0; i < marks_.size(); ++i) {
    if (!PlaceOf(i).contains(help.pos())) continue;
    QToolTip::showText(help.globalPos(), marks_[i].text, this, PlaceOf(i).toRect());
    return true;
  }
  QToolTip::hideText();
  return true;
}

}  // namespace benevix
