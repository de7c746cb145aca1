#pragma once

#include <QStyle>
#include <QStyleOption>

#include "mirror/look/theme.h"

class QPainter;
class QWidget;

// How the theme draws the parts of widgets. The places are those of the option's rectangle.
namespace benevix {

// Where a title and the contents of a group box stand, by its look.
[[nodiscard]] QRect TitleRect(const QStyleOptionGroupBox& box);
[[nodiscard]] QRect ContentsRect(const QStyleOptionGroupBox& box, const QString& look);

// A part of a scroll bar, which has no buttons.
[[nodiscard]] QRect ScrollBarRect(const QStyleOptionSlider& bar, QStyle::SubControl part);

// A box to type or choose in, with its border.
void PaintBox(const QStyleOption& option, const QBrush& fill, QPainter& painter);
// The square of a check box or the disc of an option, and its mark.
void PaintIndicator(const QStyleOption& option, bool round, QPainter& painter);
void PaintArrow(const QStyleOption& option, const QRect& rect, QPainter& painter);
// A button without its text.
void PaintButton(const QStyleOption& option, const QWidget* widget, Scheme scheme,
                 QPainter& painter);
// The colour of a button's text.
[[nodiscard]] QColor ButtonText(const QStyleOption& option, const QWidget* widget, Scheme scheme);
void PaintGroupBox(const QStyleOptionGroupBox& box, const QString& look, Scheme scheme,
                   QPainter& painter);
void PaintScrollBar(const QStyleOptionSlider& bar, Scheme scheme, QPainter& painter);
void PaintHeaderSection(const QRect& rect, Scheme scheme, QPainter& painter);
void PaintMenuBarItem(const QStyleOptionMenuItem& item, const QWidget* bar, Scheme scheme,
                      QPainter& painter);
void PaintTip(const QRect& rect, Scheme scheme, QPainter& painter);
// The ground, border and picture of a frame or label that has a look; false for any other.
[[nodiscard]] bool PaintFrame(const QStyleOption& option, const QWidget* widget, Scheme scheme,
                              QPainter& painter);

}  // namespace benevix
