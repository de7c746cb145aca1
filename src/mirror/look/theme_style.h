#pragma once

#include <QProxyStyle>

#include "mirror/look/theme.h"

class QStyleOptionButton;

namespace benevix {

// The toolkit's Fusion style, with the theme's own boxes, buttons, frames and bars, and with what
// the looks of the drawings ask for. What a struct colours is drawn with the palette of its widget.
class ThemeStyle : public QProxyStyle {
 public:
  explicit ThemeStyle(Scheme scheme);

  using QProxyStyle::polish;
  void polish(QWidget* widget) override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption* option,
                                     const QWidget* widget) const override;
  [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                     SubControl part, const QWidget* widget) const override;
  [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                       const QSize& contents, const QWidget* widget) const override;
  [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                                   const QWidget* widget) const override;
  [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                const QWidget* widget) const override;
  [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* answer) const override;

 private:
  void DrawButtonText(const QStyleOptionButton& button, QPainter& painter,
                      const QWidget* widget) const;

  const Scheme scheme_;
};

}  // namespace benevix
