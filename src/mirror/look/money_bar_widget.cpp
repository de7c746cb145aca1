#include "mirror/look/money_bar_widget.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "mirror/look/accessibility.h"

namespace benevix {
namespace {

// In pixels.
constexpr int kLeast = 160;
constexpr int kBarHeight = 8;
constexpr int kGap = 6;  // between the bar and the names
constexpr int kDot = 8;  // the mark before a name
constexpr int kDotGap = 6;
constexpr int kNameGap = 24;  // between names

}  // namespace

MoneyBarWidget::MoneyBarWidget(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  MarkAsIndicator(*this);
}

void MoneyBarWidget::SetParts(std::vector<Part> parts, const QString& remark) {
  if (parts_ == parts && remark_ == remark) return;
  parts_ = std::move(parts);
  remark_ = remark;
  updateGeometry();
  update();
}

QSize MoneyBarWidget::sizeHint() const {
  QFont bold = font();
  bold.setBold(true);
  int width = QFontMetrics(bold).horizontalAdvance(remark_);
  for (const Part& part : parts_) {
    width += kDot + kDotGap + fontMetrics().horizontalAdvance(part.text) + kNameGap;
  }
  return {std::max(width, kLeast), minimumSizeHint().height()};
}

QSize MoneyBarWidget::minimumSizeHint() const {
  return {kLeast, kBarHeight + kGap + fontMetrics().height()};
}

void MoneyBarWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintBar(painter);
  PaintNames(painter);
}

void MoneyBarWidget::PaintBar(QPainter& painter) const {
  QPainterPath track;
  track.addRoundedRect(0, 0, width(), kBarHeight, kBarHeight / 2.0, kBarHeight / 2.0);
  painter.save();
  painter.setClipPath(track);
  painter.fillRect(0, 0, width(), kBarHeight, palette().mid());
  double whole = 0;
  for (const Part& part : parts_) whole += std::max(part.share, 0.0);
  double x = 0;
  for (const Part& part : parts_) {
    if (part.share <= 0) continue;
    // Even the smallest part can be seen.
    const double wide = std::max(part.share / whole * width(), 3.0);
    painter.fillRect(QRectF(x, 0, wide, kBarHeight), part.color);
    x += wide;
    painter.fillRect(QRectF(x - 1, 0, 1, kBarHeight), palette().base());
  }
  painter.restore();
}

void MoneyBarWidget::PaintNames(QPainter& painter) const {
  const int height = fontMetrics().height();
  const int top = kBarHeight + kGap;
  int x = 0;
  for (const Part& part : parts_) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(part.color);
    painter.drawEllipse(x, top + (height - kDot) / 2, kDot, kDot);
    x += kDot + kDotGap;
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(x, top, width() - x, height), Qt::AlignVCenter, part.text);
    x += fontMetrics().horizontalAdvance(part.text) + kNameGap;
  }
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(QRect(x, top, width() - x, height), Qt::AlignVCenter, remark_);
}

}  // namespace benevix
