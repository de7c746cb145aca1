#include "mirror/look/theme.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPalette>
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
  QRgb window;     // ground of the windows
  QRgb base;       // ground of boxes, lists and cards
  QRgb alternate;  // every second row of a list
  QRgb face;       // buttons
  QRgb hover;      // button under the mouse
  QRgb line;       // borders that only divide
  QRgb edge;       // borders that can be pressed or typed in
  QRgb text;
  QRgb muted;  // less important text, disabled text
  QRgb accent;
  QRgb accentHover;
  QRgb onAccent;  // text on the accent
  QRgb tint;      // the guidance line's ground
  QRgb onTint;
  QRgb given;     // ground of boxes that no longer take an entry
  QRgb computed;  // ground of the Balance
  QRgb sand;      // ground of the fee modes
  QRgb red;
  QRgb green;
  QRgb lit;      // the news indicator with news
  QRgb service;  // parts of the money bar, beside the accent
  QRgb method;
  QRgb left;
};

constexpr Tones kLight{.window = 0xf3f5f7,
                       .base = 0xffffff,
                       .alternate = 0xf6f8f9,
                       .face = 0xffffff,
                       .hover = 0xe9edf0,
                       .line = 0xd5dbe1,
                       .edge = 0x7f8b97,
                       .text = 0x1b252e,
                       .muted = 0x4e5964,
                       .accent = 0x0b6e69,
                       .accentHover = 0x095a56,
                       .onAccent = 0xffffff,
                       .tint = 0xd9eeec,
                       .onTint = 0x083f3c,
                       .given = 0xe6eaee,
                       .computed = 0xe8f1f1,
                       .sand = 0xf3efd8,
                       .red = 0xb3201b,
                       .green = 0x1f8f45,
                       .lit = 0xc47400,
                       .service = 0xb86a00,
                       .method = 0x7b4fa0,
                       .left = 0xb9c4ce};

constexpr Tones kDark{.window = 0x1d2227,
                      .base = 0x15191d,
                      .alternate = 0x1a1f24,
                      .face = 0x2b3239,
                      .hover = 0x363f48,
                      .line = 0x343c45,
                      .edge = 0x6b7784,
                      .text = 0xe6eaee,
                      .muted = 0xa3adb8,
                      .accent = 0x58c4ba,
                      .accentHover = 0x7ad4cb,
                      .onAccent = 0x0b1f1d,
                      .tint = 0x163a38,
                      .onTint = 0xd2f1ee,
                      .given = 0x2e353c,
                      .computed = 0x1c3030,
                      .sand = 0x2f2d1e,
                      .red = 0xff8f88,
                      .green = 0x4fc27a,
                      .lit = 0xffb84d,
                      .service = 0xf0ad4e,
                      .method = 0xc39be0,
                      .left = 0x55616d};

const Tones& TonesOf(Scheme scheme) {
  return scheme == Scheme::Light ? kLight : kDark;
}

QPalette PaletteOf(const Tones& tones) {
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
    palette.setColor(role, tone);
  }
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, tones.muted);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, tones.window);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.line);
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, tones.text);
  return palette;
}

QString SheetOf(const Tones& tones, QFont font) {
  QFile file(QStringLiteral(":/theme.qss"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString sheet = QString::fromLatin1(file.readAll());
  const auto set = [&sheet](const char* name, const QString& value) {
    sheet.replace(QLatin1Char('@') + QLatin1String(name), value);
  };
  // "accentHover" before "accent", with which it begins.
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
    set(name, QColor(tone).name());
  }
  const double points = QFontInfo(font).pointSizeF();
  set("small", QString::number(points * 0.9));
  set("medium", QString::number(points * 1.15));
  set("large", QString::number(points * 1.8));
  const QFontMetrics plain(font);
  set("title", QString::number(plain.height() + 9));
  set("track", QString::number(plain.height() + 8));
  // A minimum width in a style sheet replaces the one of the text, so the text must fit into it.
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
  return {tones.given, tones.accent, tones.tint, tones.accent};
}

QColor UseColor(MoneyBar::Part::Use use, Scheme scheme) {
  const Tones& tones = TonesOf(scheme);
  switch (use) {
    case MoneyBar::Part::Use::Given:
      return tones.accent;
    case MoneyBar::Part::Use::ServiceFees:
      return tones.service;
    case MoneyBar::Part::Use::MethodFee:
      return tones.method;
    case MoneyBar::Part::Use::Left:
      return tones.left;
  }
  return {};
}

QColor RoleColor(Color role, Scheme scheme) {
  const Tones& tones = TonesOf(scheme);
  switch (role) {
    case colors::kBlack:
    case colors::kWindowText:
    case colors::kButtonText:
    case colors::kNewsText:
      return tones.text;
    case colors::kRed:
      return tones.red;
    case colors::kGreen:
      return tones.green;
    case colors::kLightGrey:
      return tones.given;
    case colors::kSand:
    case colors::kLightSand:  // the two can hardly be told apart
      return tones.sand;
    case colors::kWindowBackground:
      return tones.base;
    case colors::kButtonFace:
      return tones.window;
    case colors::kBalanceGround:
      return tones.computed;
    case colors::kNewsLit:
      return tones.lit;
    case colors::kAccent:
      return tones.accent;
    case colors::kSplashBorder:
      return tones.edge;
    default:  // kMuted, kOff
      return tones.muted;
  }
}

}  // namespace benevix
