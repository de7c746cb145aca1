#include "player/widget_colors.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <algorithm>
#include <map>

#include "player/properties.h"

namespace benevix {
namespace {

using Text = std::optional<std::string>;

constexpr int kScale = 4;  // so that lines and letters have an inside that is all one colour
constexpr QSize kLargest(2000, 500);  // of a long text the beginning will do

QImage Picture(QWidget& widget, QWidget::RenderFlags flags = {}) {
  const QSize size = widget.size().boundedTo(kLargest);
  QImage picture(size * kScale, QImage::Format_ARGB32_Premultiplied);
  picture.setDevicePixelRatio(kScale);
  picture.fill(Qt::transparent);
  widget.render(&picture, QPoint(), QRegion(), flags);
  return picture;
}

// The colour of a place; transparent where nothing is drawn.
QColor ColorAt(const QImage& picture, QPointF place) {
  return picture.pixelColor((place * kScale).toPoint());
}

// How often each colour is drawn.
std::map<QRgb, int> ColorsIn(const QImage& picture) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb color = picture.pixel(x, y);
      if (qAlpha(color) == 255) ++counts[color];
    }
  }
  return counts;
}

Text DrawnColor(const QColor& drawn, const QColor& theme, Color color) {
  if (drawn.rgba() == theme.rgba()) return ColorText(color);
  const QColor swapped(drawn.blue(), drawn.green(), drawn.red());
  return ColorText(swapped.rgb() & 0xffffff);
}

// What the theme draws for a text that the mirror has not coloured.
QColor ThemeText(const QWidget& widget) {
  QLabel plain;
  plain.setProperty("look", widget.property("look"));
  plain.setEnabled(widget.isEnabled());
  plain.ensurePolished();
  return plain.palette().color(QPalette::WindowText);
}

QColor ThemeBox(const QWidget& widget) {
  const auto group = widget.isEnabled() ? QPalette::Active : QPalette::Disabled;
  return QApplication::palette().color(group, QPalette::Base);
}

// The mirror leaves the theme's colour where the struct has its design's, and on disabled texts.
QColor WantedText(const QWidget& widget, Color color, Color design, Scheme scheme) {
  const bool themes = color == design || !widget.isEnabled();
  return themes ? ThemeText(widget) : RoleColor(color, scheme);
}

// The drawn letters decide, not what the palette holds.
Text OfLabel(const Label& label, QWidget& widget, Scheme scheme) {
  const auto drawn = ColorsIn(Picture(widget));
  if (drawn.empty()) return std::nullopt;
  const QColor wanted = WantedText(widget, label.foreColor, Label().foreColor, scheme);
  if (drawn.count(wanted.rgb()) != 0) return ColorText(label.foreColor);
  const auto most = std::max_element(
      drawn.begin(), drawn.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
  return DrawnColor(most->first, wanted, label.foreColor);
}

Text OfBox(const TextBox& box, QWidget& widget, const std::string& property, Scheme scheme) {
  const TextBox design;
  if (property == "ForeColor") {
    return DrawnColor(widget.palette().color(QPalette::Text),
                      WantedText(widget, box.foreColor, design.foreColor, scheme), box.foreColor);
  }
  if (property != "BackColor") return std::nullopt;
  const bool themes = box.backColor == design.backColor;
  const QPointF aboveText(widget.width() / 2.0, 3);
  return DrawnColor(ColorAt(Picture(widget, QWidget::DrawChildren), aboveText),
                    themes ? ThemeBox(widget) : RoleColor(box.backColor, scheme), box.backColor);
}

// In the design's colour it draws no background.
Text OfOption(const OptionButton& option, QWidget& widget, Scheme scheme) {
  const bool themes = option.backColor == OptionButton().backColor;
  const QPointF besideText(widget.width() - 1.0, 1);
  return DrawnColor(ColorAt(Picture(widget), besideText),
                    themes ? Qt::transparent : RoleColor(option.backColor, scheme),
                    option.backColor);
}

Text OfShape(const Shape& shape, QWidget& widget, const std::string& property, Scheme scheme) {
  const QImage picture = Picture(widget);
  const QPointF center = widget.rect().toRectF().center();
  if (property == "BorderColor") {
    return DrawnColor(ColorAt(picture, QPointF(0.5, center.y())),
                      RoleColor(shape.borderColor, scheme), shape.borderColor);
  }
  const QColor inside = ColorAt(picture, center);
  if (property == "FillStyle") return inside.alpha() > 0 ? "0" : "1";
  if (property != "FillColor" || shape.fillStyle != 0) return std::nullopt;
  return DrawnColor(inside, RoleColor(shape.fillColor, scheme), shape.fillColor);
}

}  // namespace

Text ReadWidgetColor(const NamedControl& control, QWidget& widget, const std::string& property,
                     Scheme scheme) {
  if (const auto* const box = control.As<TextBox>()) return OfBox(*box, widget, property, scheme);
  if (const auto* const shape = control.As<Shape>()) {
    return OfShape(*shape, widget, property, scheme);
  }
  const auto* const option = control.As<OptionButton>();
  if (option != nullptr && property == "BackColor") return OfOption(*option, widget, scheme);
  const auto* const label = control.As<Label>();
  if (label == nullptr || property != "ForeColor") return std::nullopt;
  return OfLabel(*label, widget, scheme);
}

}  // namespace benevix
