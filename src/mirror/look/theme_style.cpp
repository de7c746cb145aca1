#include "mirror/look/theme_style.h"

#include <QIcon>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

namespace benevix {

namespace {

constexpr double kRadius = 4;
constexpr int kTextInset = 4;

// The outline of a box of the given border width, whose stroke stays inside the rectangle.
QRectF Outline(const QRect& rect, double border) {
  const double inset = border / 2;
  return QRectF(rect).adjusted(inset, inset, -inset, -inset);
}

bool Has(const QStyleOption& option, QStyle::StateFlag flag) {
  return option.state.testFlag(flag);
}

QPen BorderPen(const QStyleOption& option) {
  if (!Has(option, QStyle::State_Enabled)) return QPen(option.palette.color(QPalette::Mid), 1);
  if (Has(option, QStyle::State_HasFocus)) {
    return QPen(option.palette.color(QPalette::Highlight), 2);
  }
  return QPen(option.palette.color(QPalette::Dark), 1);
}

void DrawBox(const QStyleOption& option, const QBrush& fill, QPainter& painter) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QPen pen = BorderPen(option);
  painter.setPen(pen);
  painter.setBrush(fill);
  painter.drawRoundedRect(Outline(option.rect, pen.widthF()), kRadius, kRadius);
  painter.restore();
}

// The square of a check box or the disc of an option, and its mark.
void DrawIndicator(const QStyleOption& option, bool round, QPainter& painter) {
  const bool chosen = Has(option, QStyle::State_On);
  const bool enabled = Has(option, QStyle::State_Enabled);
  const QPalette& palette = option.palette;
  const QColor mark = palette.color(enabled ? QPalette::Highlight : QPalette::WindowText);

  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min(option.rect.width(), option.rect.height());
  QRectF square(0, 0, side, side);
  square.moveCenter(QRectF(option.rect).center());
  square.adjust(0.5, 0.5, -0.5, -0.5);
  const bool filled = chosen && !round && enabled;
  const bool focused = enabled && Has(option, QStyle::State_HasFocus);
  painter.setPen(QPen(chosen || focused ? mark : palette.color(QPalette::Dark), focused ? 2 : 1));
  painter.setBrush(filled ? mark : palette.color(QPalette::Base));
  const double radius = round ? side / 2 : kRadius * 0.75;
  painter.drawRoundedRect(square, radius, radius);
  if (chosen && round) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(mark);
    painter.drawEllipse(square.center(), side * 0.27, side * 0.27);
  } else if (chosen) {
    QPen pen(filled ? palette.color(QPalette::HighlightedText) : mark, side / 8);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    painter.setPen(pen);
    const auto at = [&square](double x, double y) {
      return square.topLeft() + QPointF(x * square.width(), y * square.height());
    };
    painter.drawPolyline(QPolygonF({at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.30)}));
  }
  painter.restore();
}

void DrawArrow(const QStyleOption& option, const QRect& rect, QPainter& painter) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  QPen pen(option.palette.color(QPalette::ButtonText), 1.5);
  pen.setCapStyle(Qt::RoundCap);
  painter.setPen(pen);
  const QPointF middle = QRectF(rect).center();
  painter.drawPolyline(
      QPolygonF({middle + QPointF(-4, -2), middle + QPointF(0, 2), middle + QPointF(4, -2)}));
  painter.restore();
}

}  // namespace

ThemeStyle::ThemeStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  switch (element) {
    case PE_PanelLineEdit: {
      const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
      // The edit inside a combo box has no frame of its own.
      if (!frame || frame->lineWidth <= 0) break;
      DrawBox(*option, option->palette.brush(QPalette::Base), *painter);
      return;
    }
    case PE_IndicatorCheckBox:
      DrawIndicator(*option, false, *painter);
      return;
    case PE_IndicatorRadioButton:
      DrawIndicator(*option, true, *painter);
      return;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ThemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (control != CC_ComboBox || !combo || !combo->frame) {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    return;
  }
  DrawBox(*option, option->palette.brush(combo->editable ? QPalette::Base : QPalette::Button),
          *painter);
  DrawArrow(*option, subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget), *painter);
}

QRect ThemeStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                 SubControl part, const QWidget* widget) const {
  const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
  const bool text = control == CC_ComboBox && part == SC_ComboBoxEditField;
  return text ? rect.adjusted(kTextInset, 0, -kTextInset, 0) : rect;
}

QSize ThemeStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                   const QSize& contents, const QWidget* widget) const {
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  return type == CT_ComboBox ? size + QSize(2 * kTextInset, 2) : size;
}

QIcon ThemeStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                               const QWidget* widget) const {
  switch (icon) {
    case SP_MessageBoxInformation:
      return QIcon(QStringLiteral(":/images/information.svg"));
    case SP_MessageBoxQuestion:
      return QIcon(QStringLiteral(":/images/question.svg"));
    case SP_MessageBoxWarning:
      return QIcon(QStringLiteral(":/images/warning.svg"));
    case SP_MessageBoxCritical:
      return QIcon(QStringLiteral(":/images/critical.svg"));
    default:
      return QProxyStyle::standardIcon(icon, option, widget);
  }
}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
  switch (metric) {
    case PM_FocusFrameHMargin:  // the cells' text starts where the headers' does
      return 7;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return 16;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int ThemeStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* answer) const {
  // The buttons of a question look like all others.
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

}  // namespace benevix
