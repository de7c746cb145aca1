#include "mirror/look/theme.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPalette>
#include <algorithm>
#include <utility>

#include "mirror/look/theme_style.h"

// A resource in a static library is linked only when it is asked for, outside every namespace.
static void InitResources() {
  Q_INIT_RESOURCE(benevix);
}

namespace benevix {

namespace {

// Every text colour reaches a contrast of 4.5 to 1 on each of the grounds it is drawn on.
struct Tones {
  const char* window;     // ground of the windows
  const char* base;       // ground of boxes, lists and cards
  const char* alternate;  // every second row of a list
  const char* face;       // buttons
  const char* hover;      // button under the mouse
  const char* line;       // borders that only part
  const char* edge;       // borders that can be pressed or typed in
  const char* text;
  const char* muted;  // less important text, disabled text
  const char* accent;
  const char* accentHover;
  const char* onAccent;  // text on the accent
  const char* tint;      // the guidance line's ground
  const char* onTint;
  const char* given;     // ground of boxes that show and no longer ask
  const char* computed;  // ground of the Balance
  const char* sand;      // ground of the fee modes
  const char* red;
  const char* green;
  const char* lit;      // the news indicator with news
  const char* service;  // parts of the money bar, beside the accent
  const char* method;
  const char* left;
};

constexpr Tones kLight{.window = "#f3f5f7",
                       .base = "#ffffff",
                       .alternate = "#f6f8f9",
                       .face = "#ffffff",
                       .hover = "#e9edf0",
                       .line = "#d5dbe1",
                       .edge = "#7f8b97",
                       .text = "#1b252e",
                       .muted = "#4e5964",
                       .accent = "#0b6e69",
                       .accentHover = "#095a56",
                       .onAccent = "#ffffff",
                       .tint = "#d9eeec",
                       .onTint = "#083f3c",
                       .given = "#e6eaee",
                       .computed = "#e8f1f1",
                       .sand = "#f3efd8",
                       .red = "#b3201b",
                       .green = "#1f8f45",
                       .lit = "#c47400",
                       .service = "#b86a00",
                       .method = "#7b4fa0",
                       .left = "#b9c4ce"};

constexpr Tones kDark{.window = "#1d2227",
                      .base = "#15191d",
                      .alternate = "#1a1f24",
                      .face = "#2b3239",
                      .hover = "#363f48",
                      .line = "#343c45",
                      .edge = "#6b7784",
                      .text = "#e6eaee",
                      .muted = "#a3adb8",
                      .accent = "#58c4ba",
                      .accentHover = "#7ad4cb",
                      .onAccent = "#0b1f1d",
                      .tint = "#163a38",
                      .onTint = "#d2f1ee",
                      .given = "#2e353c",
                      .computed = "#1c3030",
                      .sand = "#2f2d1e",
                      .red = "#ff8f88",
                      .green = "#4fc27a",
                      .lit = "#ffb84d",
                      .service = "#f0ad4e",
                      .method = "#c39be0",
                      .left = "#55616d"};

const Tones& TonesOf(Scheme scheme) {
  return scheme == Scheme::Light ? kLight : kDark;
}

QPalette PaletteOf(const Tones& tones) {
  const auto color = [](const char* tone) { return QColor(QLatin1String(tone)); };
  QPalette palette;
  for (const auto& [role, tone] : {std::pair{QPalette::Window, tones.window},
                                   {QPalette::WindowText, tones.text},
                                   {QPalette::Base, tones.base},
                                   {QPalette::AlternateBase, tones.alternate},
                                   {QPalette::Text, tones.text},
                                   {QPalette::PlaceholderText, tones.muted},
                                   {QPalette::Button, tones.face},
                                   {QPalette::ButtonText, tones.text},
                                   {QPalette::BrightText, tones.red},
                                   {QPalette::ToolTipBase, tones.base},
                                   {QPalette::ToolTipText, tones.text},
                                   {QPalette::Highlight, tones.accent},
                                   {QPalette::HighlightedText, tones.onAccent},
                                   {QPalette::Link, tones.accent},
                                   {QPalette::LinkVisited, tones.accent},
                                   {QPalette::Light, tones.base},
                                   {QPalette::Midlight, tones.line},
                                   {QPalette::Mid, tones.line},
                                   {QPalette::Dark, tones.edge},
                                   {QPalette::Shadow, tones.edge}}) {
    palette.setColor(role, color(tone));
  }
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, color(tones.muted));
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, color(tones.window));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, color(tones.line));
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, color(tones.text));
  return palette;
}

QString SheetOf(const Tones& tones, QFont font) {
  QFile file(QStringLiteral(":/theme.qss"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString sheet = QString::fromLatin1(file.readAll());
  const auto set = [&sheet](const char* name, const QString& value) {
    sheet.replace(QLatin1Char('@') + QLatin1String(name), value);
  };
  // A longer name comes before the one that it begins with.
  for (const auto& [name, tone] : {std::pair{"accentHover", tones.accentHover},
                                   {"accent", tones.accent},
                                   {"onAccent", tones.onAccent},
                                   {"onTint", tones.onTint},
                                   {"tint", tones.tint},
                                   {"window", tones.window},
                                   {"base", tones.base},
                                   {"face", tones.face},
                                   {"hover", tones.hover},
                                   {"line", tones.line},
                                   {"edge", tones.edge},
                                   {"text", tones.text},
                                   {"muted", tones.muted},
                                   {"given", tones.given}}) {
    set(name, QLatin1String(tone));
  }
  const double points = QFontInfo(font).pointSizeF();
  set("small", QString::number(points * 0.9));
  set("medium", QString::number(points * 1.15));
  set("large", QString::number(points * 1.8));
  const QFontMetrics plain(font);
  set("title", QString::number(plain.height() + 9));
  set("track", QString::number(plain.height() + 8));
  // A style sheet's least width takes the place of the text's, so it must hold the text.
  font.setBold(true);
  const auto width = [&font](const char* text) {
    return QString::number(QFontMetrics(font).horizontalAdvance(QLatin1String(text)));
  };
  set("button", width("Continue"));
  font.setPointSizeF(points * 1.15);
  set("guidance", QString::number(2 * QFontMetrics(font).lineSpacing()));
  font.setPointSizeF(points * 1.8);
  set("amount", width("10,000.00"));
  return sheet;
}

// The tone of a colour that the program names, or null.
const char* ToneOf(Color role, const Tones& tones) {
  switch (role) {
    case colors::kBlack:
    case colors::kWindowText:
    case colors::kButtonText:
    case colors::kDarkShadow3D:
      return tones.text;
    case colors::kRed:
      return tones.red;
    case colors::kGreen:
      return tones.green;
    case colors::kLightGrey:
      return tones.given;
    case colors::kSand:
    case colors::kLightSand:  // a shade apart, told by nobody's eye
      return tones.sand;
    case colors::kWindowBackground:
      return tones.base;
    case colors::kButtonFace:
      return tones.window;
    case colors::kInactiveTitleText:  // only ever the ground of the Balance
      return tones.computed;
    case colors::kLight3D:  // only ever the news indicator with news
      return tones.lit;
    case colors::kActiveTitleBar:
      return tones.accent;
    case colors::kInactiveTitleBar:
      return tones.edge;
    case colors::kButtonShadow:
    case colors::kInactiveBorder:  // also a text that is to stand back
      return tones.muted;
    default:
      return nullptr;
  }
}

}  // namespace

Scheme DesktopScheme() {
  const QString wished = qEnvironmentVariable("BENEVIX_SCHEME");
  if (wished == QLatin1String("light")) return Scheme::Light;
  if (wished == QLatin1String("dark")) return Scheme::Dark;
  const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
  return dark ? Scheme::Dark : Scheme::Light;
}

void ApplyTheme(QApplication& app, Scheme scheme) {
  InitResources();
  const Tones& tones = TonesOf(scheme);
  QApplication::setStyle(new ThemeStyle);  // the application owns it
  QApplication::setPalette(PaletteOf(tones));
  app.setStyleSheet(SheetOf(tones, QApplication::font()));
}

ListColors ListColorsOf(Scheme scheme) {
  const Tones& tones = TonesOf(scheme);
  const auto color = [](const char* tone) { return QColor(QLatin1String(tone)); };
  return {color(tones.given), color(tones.accent), color(tones.tint), color(tones.accent)};
}

QColor UseColor(MoneyBar::Part::Use use, Scheme scheme) {
  const Tones& tones = TonesOf(scheme);
  switch (use) {
    case MoneyBar::Part::Use::Given:
      return {QLatin1String(tones.accent)};
    case MoneyBar::Part::Use::ServiceFees:
      return {QLatin1String(tones.service)};
    case MoneyBar::Part::Use::MethodFee:
      return {QLatin1String(tones.method)};
    case MoneyBar::Part::Use::Left:
      return {QLatin1String(tones.left)};
  }
  return {};
}

QColor RoleColor(Color role, Scheme scheme) {
  if (const char* tone = ToneOf(role, TonesOf(scheme))) return QColor(QLatin1String(tone));
  // A system colour that nobody uses yet stands back.
  if (role & 0x80000000u) return QColor(QLatin1String(TonesOf(scheme).muted));
  const QColor color(static_cast<int>(role & 0xFFu), static_cast<int>(role >> 8 & 0xFFu),
                     static_cast<int>(role >> 16 & 0xFFu));
  if (scheme == Scheme::Light) return color;
  // The same hue with the lightness turned over: light grounds become dark, dark texts light.
  float hue = 0, saturation = 0, lightness = 0;
  color.getHslF(&hue, &saturation, &lightness);
  const bool ground = lightness > 0.5f;
  const float turned = ground ? 0.1f + 0.3f * (1 - lightness) : 0.95f - 0.4f * lightness;
  return QColor::fromHslF(std::max(hue, 0.0f), saturation, turned);
}

}  // namespace benevix
