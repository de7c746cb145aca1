#include "mirror/look/theme_painting.h"

#include <QPainter>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTableView>
#include <algorithm>

#include "mirror/look/pictures.h"
#include "mirror/look/tones.h"
#include "mirror/look/widget_look.h"

namespace benevix {
namespace {

constexpr double kRadius = 4;      // of boxes and buttons
constexpr double kCardRadius = 8;  // of cards and group boxes

bool Has(const QStyleOption& option, QStyle::StateFlag flag) {
  return option.state.testFlag(flag);
}

// The border's stroke stays inside the rectangle.
void PaintRounded(const QRect& rect, const QBrush& fill, const QPen& pen, double radius,
                  QPainter& painter) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(pen);
  painter.setBrush(fill);
  const double inset = pen.style() == Qt::NoPen ? 0 : pen.widthF() / 2;
  painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius, radius);
  painter.restore();
}

QPen BorderPen(const QStyleOption& option) {
  if (!Has(option, QStyle::State_Enabled)) return QPen(option.palette.color(QPalette::Mid), 1);
  if (Has(option, QStyle::State_HasFocus)) {
    return QPen(option.palette.color(QPalette::Highlight), 2);
  }
  return QPen(option.palette.color(QPalette::Dark), 1);
}

bool IsPrimary(const QWidget* widget) {
  return widget != nullptr && LookOf(*widget) == QLatin1String("primary");
}

// A button that waits for the server looks as if it were disabled.
bool CanBePressed(const QStyleOption& option, const QWidget* widget) {
  const bool waits = widget != nullptr && widget->property("waits").toBool();
  return Has(option, QStyle::State_Enabled) && !waits;
}

const Tone& GroundOf(const QStyleOption& option, bool primary) {
  const bool hovered = Has(option, QStyle::State_MouseOver);
  if (primary) return hovered ? tone::kAccentHover : tone::kAccent;
  if (Has(option, QStyle::State_Sunken)) return tone::kLine;
  return hovered ? tone::kHover : tone::kFace;
}

// A sentence on a tint, with a bar of the accent before it.
void PaintGuidance(const QRect& rect, Scheme scheme, QPainter& painter) {
  constexpr int bar = 4;
  painter.save();
  PaintRounded(rect, ColorOf(tone::kTint, scheme), Qt::NoPen, kRadius, painter);
  painter.setClipRect(QRect(rect.topLeft(), QSize(bar, rect.height())));
  PaintRounded(rect, ColorOf(tone::kAccent, scheme), Qt::NoPen, kRadius, painter);
  painter.restore();
}

QRect HandleRect(const QStyleOptionSlider& bar) {
  constexpr int least = 38;  // pixels
  const bool across = bar.orientation == Qt::Horizontal;
  const int room = across ? bar.rect.width() : bar.rect.height();
  const qint64 range = qint64{bar.maximum} - bar.minimum;
  int length = room;
  if (range > 0) {
    const auto share = static_cast<int>(qint64{bar.pageStep} * room / (range + bar.pageStep));
    length = std::clamp(share, std::min(least, room), room);
  }
  const int begin = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                    room - length, bar.upsideDown);
  const QRect handle = across ? QRect(begin, 0, length, bar.rect.height())
                              : QRect(0, begin, bar.rect.width(), length);
  return handle.translated(bar.rect.topLeft());
}

// Images that are pressed show their focus.
void PaintPictureLabel(const QStyleOption& option, QRect rect, const QString& name,
                       QPainter& painter) {
  if (name == QLatin1String("enter") || name == QLatin1String("exit")) {
    constexpr double radius = 6;
    if (Has(option, QStyle::State_HasFocus)) {
      PaintRounded(rect, Qt::NoBrush, QPen(option.palette.color(QPalette::WindowText), 2), radius,
                   painter);
    }
    rect.adjust(4, 4, -4, -4);
  }
  const auto side = name == QLatin1String("wizard") ? Qt::AlignTop : Qt::AlignVCenter;
  PaintPicture(name, rect, Qt::AlignHCenter | side, painter);
}

}  // namespace

QRect TitleRect(const QStyleOptionGroupBox& box) {
  const QSize size = box.fontMetrics.size(Qt::TextShowMnemonic, box.text);
  return {box.rect.topLeft() + QPoint(12, 5), size};
}

QRect ContentsRect(const QStyleOptionGroupBox& box, const QString& look) {
  const int title = box.fontMetrics.height() + 7;
  if (look == QLatin1String("plain")) return box.rect.adjusted(1, 1, -1, -1);
  if (look == QLatin1String("untitled")) return box.rect.adjusted(13, 4, -13, -4);
  // The texts of its lines stand below its title.
  if (look == QLatin1String("rows")) return box.rect.adjusted(5, title, -5, -5);
  return box.rect.adjusted(13, title, -13, -3);
}

QRect ScrollBarRect(const QStyleOptionSlider& bar, QStyle::SubControl part) {
  const QRect handle = HandleRect(bar);
  QRect before = bar.rect, behind = bar.rect;
  if (bar.orientation == Qt::Horizontal) {
    before.setRight(handle.left() - 1);
    behind.setLeft(handle.right() + 1);
  } else {
    before.setBottom(handle.top() - 1);
    behind.setTop(handle.bottom() + 1);
  }
  switch (part) {
    case QStyle::SC_ScrollBarSlider:
      return handle;
    case QStyle::SC_ScrollBarGroove:
      return bar.rect;
    case QStyle::SC_ScrollBarSubPage:
      return before;
    case QStyle::SC_ScrollBarAddPage:
      return behind;
    default:
      return {};
  }
}

void PaintBox(const QStyleOption& option, const QBrush& fill, QPainter& painter) {
  PaintRounded(option.rect, fill, BorderPen(option), kRadius, painter);
}

void PaintIndicator(const QStyleOption& option, bool round, QPainter& painter) {
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

void PaintArrow(const QStyleOption& option, const QRect& rect, QPainter& painter) {
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

void PaintButton(const QStyleOption& option, const QWidget* widget, Scheme scheme,
                 QPainter& painter) {
  const bool primary = IsPrimary(widget);
  Tone ground = primary ? tone::kGiven : tone::kWindow;
  QPen border(ColorOf(tone::kLine, scheme), 1);
  if (CanBePressed(option, widget)) {
    ground = GroundOf(option, primary);
    border.setColor(ColorOf(primary ? tone::kAccent : tone::kEdge, scheme));
    if (Has(option, QStyle::State_HasFocus)) {
      border = QPen(ColorOf(primary ? tone::kText : tone::kAccent, scheme), 2);
    }
  }
  PaintRounded(option.rect, ColorOf(ground, scheme), border, kRadius, painter);
}

QColor ButtonText(const QStyleOption& option, const QWidget* widget, Scheme scheme) {
  if (!CanBePressed(option, widget)) return ColorOf(tone::kMuted, scheme);
  return ColorOf(IsPrimary(widget) ? tone::kOnAccent : tone::kText, scheme);
}

void PaintGroupBox(const QStyleOptionGroupBox& box, const QString& look, Scheme scheme,
                   QPainter& painter) {
  if (look == QLatin1String("plain")) return;
  PaintRounded(box.rect, ColorOf(tone::kBase, scheme), ColorOf(tone::kLine, scheme), kCardRadius,
               painter);
  // A label above it shows the title already.
  if (look == QLatin1String("untitled")) return;
  const bool enabled = Has(box, QStyle::State_Enabled);
  painter.setPen(ColorOf(enabled ? tone::kAccent : tone::kMuted, scheme));
  painter.drawText(TitleRect(box), Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip,
                   box.text);
}

void PaintScrollBar(const QStyleOptionSlider& bar, Scheme scheme, QPainter& painter) {
  painter.fillRect(bar.rect, ColorOf(tone::kWindow, scheme));
  const bool hovered =
      Has(bar, QStyle::State_MouseOver) && bar.activeSubControls == QStyle::SC_ScrollBarSlider;
  const Tone& handle = !Has(bar, QStyle::State_Enabled) ? tone::kLine
                       : hovered                        ? tone::kMuted
                                                        : tone::kEdge;
  PaintRounded(HandleRect(bar).adjusted(3, 3, -3, -3), ColorOf(handle, scheme), Qt::NoPen, kRadius,
               painter);
}

void PaintHeaderSection(const QRect& rect, Scheme scheme, QPainter& painter) {
  painter.fillRect(rect, ColorOf(tone::kWindow, scheme));
  painter.fillRect(QRect(rect.right(), rect.top(), 1, rect.height()), ColorOf(tone::kLine, scheme));
  painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1),
                   ColorOf(tone::kEdge, scheme));
}

void PaintMenuBarItem(const QStyleOptionMenuItem& item, const QWidget* bar, Scheme scheme,
                      QPainter& painter) {
  const bool selected = Has(item, QStyle::State_Selected);
  painter.fillRect(item.rect, ColorOf(selected ? tone::kAccent : tone::kWindow, scheme));
  if (bar != nullptr) {
    painter.fillRect(QRect(item.rect.left(), bar->height() - 1, item.rect.width(), 1),
                     ColorOf(tone::kLine, scheme));
  }
  const bool enabled = Has(item, QStyle::State_Enabled);
  painter.setPen(ColorOf(selected  ? tone::kOnAccent
                         : enabled ? tone::kText
                                   : tone::kMuted,
                         scheme));
  painter.drawText(item.rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
                   item.text);
}

void PaintTip(const QRect& rect, Scheme scheme, QPainter& painter) {
  painter.setPen(ColorOf(tone::kEdge, scheme));
  painter.setBrush(ColorOf(tone::kBase, scheme));
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

bool PaintFrame(const QStyleOption& option, const QWidget* widget, Scheme scheme,
                QPainter& painter) {
  if (widget == nullptr) return false;
  if (qobject_cast<const QPlainTextEdit*>(widget) != nullptr) {
    PaintBox(option, option.palette.brush(QPalette::Base), painter);
    return true;
  }
  const QString look = LookOf(*widget);
  const QRect rect = widget->rect();  // the option's leaves out the room around a label's text
  const QColor base = ColorOf(tone::kBase, scheme);
  if (qobject_cast<const QTableView*>(widget) != nullptr) {
    if (look == QLatin1String("plain")) return true;
    painter.setPen(
        ColorOf(Has(option, QStyle::State_HasFocus) ? tone::kAccent : tone::kLine, scheme));
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
  } else if (look == QLatin1String("strip")) {
    painter.fillRect(rect, base);
  } else if (look == QLatin1String("card")) {
    PaintRounded(rect, base, ColorOf(tone::kLine, scheme), kCardRadius, painter);
  } else if (look == QLatin1String("bubble")) {
    PaintRounded(rect, base, ColorOf(tone::kEdge, scheme), kRadius, painter);
  } else if (look == QLatin1String("guidance")) {
    PaintGuidance(rect, scheme, painter);
  } else if (look == QLatin1String("logo") || look == QLatin1String("enter") ||
             look == QLatin1String("exit") || look == QLatin1String("wizard") ||
             look == QLatin1String("mail")) {
    PaintPictureLabel(option, rect, look, painter);
  } else {
    return false;
  }
  return true;
}

}  // namespace benevix
