#include "mirror/look/shape_widget.h"

#include <QPainter>
#include <algorithm>

#include "mirror/look/accessibility.h"

namespace benevix {

namespace {
constexpr double kRadius = 8;
}

ShapeWidget::ShapeWidget(QWidget* parent) : QWidget(parent) {
  MarkAsIndicator(*this);
}

void ShapeWidget::SetFill(const QColor& color) {
  if (color == fill_) return;
  fill_ = color;
  update();
}

void ShapeWidget::SetBorder(const QColor& color) {
  if (color == border_) return;
  border_ = color;
  update();
}

void ShapeWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(border_, 1));
  painter.setBrush(fill_.isValid() ? QBrush(fill_) : QBrush(Qt::NoBrush));
  // Half of the pen is drawn outside the outline.
  const QRectF outline = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  const double radius = std::min({kRadius, outline.width() / 2, outline.height() / 2});
  painter.drawRoundedRect(outline, radius, radius);
}

}  // namespace benevix
