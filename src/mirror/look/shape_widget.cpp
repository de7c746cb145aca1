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

void ShapeWidget::SetBorder(const QColor& color, int width) {
  if (color == border_ && width == borderWidth_) return;
  border_ = color;
  borderWidth_ = width;
  update();
}

void ShapeWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool bordered = border_.isValid() && borderWidth_ > 0;
  painter.setPen(bordered ? QPen(border_, borderWidth_) : QPen(Qt::NoPen));
  painter.setBrush(fill_.isValid() ? QBrush(fill_) : QBrush(Qt::NoBrush));
  // The pen is drawn half outside the outline.
  const double inset = bordered ? borderWidth_ / 2.0 : 0.0;
  const QRectF outline = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
  const double radius = std::min({kRadius, outline.width() / 2, outline.height() / 2});
  painter.drawRoundedRect(outline, radius, radius);
}

}  // namespace benevix
