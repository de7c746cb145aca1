#include "mirror/look/theme.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>
#include <map>
#include <utility>

#include "mirror/look/theme_style.h"
#include "mirror/look/tones.h"

// A resource in a static library is linked only when it is asked for, outside every namespace.
static void InitResources() {
  Q_INIT_RESOURCE(benevix);
}

namespace benevix {
namespace {

QPalette PaletteOf(Scheme scheme) {
  QPalette palette;
  for (const auto& [role, tone] : {std::pair{QPalette::Window, tone::kWindow},
                                   {QPalette::WindowText, tone::kText},
                                   {QPalette::Base, tone::kBase},
                                   {QPalette::Text, tone::kText},
                                   {QPalette::PlaceholderText, tone::kMuted},
                                   {QPalette::Button, tone::kFace},
                                   {QPalette::ButtonText, tone::kText},
                                   {QPalette::BrightText, tone::kRed},
                                   {QPalette::ToolTipBase, tone::kBase},
                                   {QPalette::ToolTipText, tone::kText},
                                   {QPalette::Highlight, tone::kAccent},
                                   {QPalette::HighlightedText, tone::kOnAccent},
                                   {QPalette::Link, tone::kAccent},
                                   {QPalette::LinkVisited, tone::kAccent},
                                   {QPalette::Light, tone::kBase},
                                   {QPalette::Midlight, tone::kLine},
                                   {QPalette::Mid, tone::kLine},
                                   {QPalette::Dark, tone::kEdge},
                                   {QPalette::Shadow, tone::kEdge}}) {
    palette.setColor(role, ColorOf(tone, scheme));
  }
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, ColorOf(tone::kMuted, scheme));
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, ColorOf(tone::kWindow, scheme));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, ColorOf(tone::kLine, scheme));
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, ColorOf(tone::kText, scheme));
  return palette;
}

Tone ToneOf(Color role) {
  static const std::map<Color, Tone> tones = {
      {colors::kBlack, tone::kText},        {colors::kWindowText, tone::kText},
      {colors::kButtonText, tone::kText},   {colors::kNewsText, tone::kText},
      {colors::kRed, tone::kRed},           {colors::kGreen, tone::kGreen},
      {colors::kLightGrey, tone::kGiven},   {colors::kSand, tone::kSand},
      {colors::kLightSand, tone::kSand},    {colors::kWindowBackground, tone::kBase},
      {colors::kButtonFace, tone::kWindow}, {colors::kBalanceGround, tone::kComputed},
      {colors::kNewsLit, tone::kLit},       {colors::kAccent, tone::kAccent},
      {colors::kSplashBorder, tone::kEdge}};
  const auto found = tones.find(role);
  return found == tones.end() ? tone::kMuted : found->second;  // kMuted, kOff
}

}  // namespace

Scheme DesktopScheme() {
  const QString wished = qEnvironmentVariable(kSchemeVariable);
  if (wished == QLatin1String("light")) return Scheme::Light;
  if (wished == QLatin1String("dark")) return Scheme::Dark;
  const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
  return dark ? Scheme::Dark : Scheme::Light;
}

void ApplyTheme(QApplication& app, Scheme scheme) {
  InitResources();
  ApplyScheme(app, scheme);
}

void ApplyScheme(QApplication& /*app*/, Scheme scheme) {
  QApplication::setStyle(new ThemeStyle(scheme));  // the application owns it
  const QPalette palette = PaletteOf(scheme);
  QApplication::setPalette(palette);
  QToolTip::setPalette(palette);
}

ListColors ListColorsOf(Scheme scheme) {
  return {ColorOf(tone::kGiven, scheme), ColorOf(tone::kAccent, scheme),
          ColorOf(tone::kTint, scheme), ColorOf(tone::kAccent, scheme),
          ColorOf(tone::kMarked, scheme)};
}

QColor UseColor(MoneyBar::Part::Use use, Scheme scheme) {
  switch (use) {
    case MoneyBar::Part::Use::Given:
      return ColorOf(tone::kAccent, scheme);
    case MoneyBar::Part::Use::ServiceFees:
      return ColorOf(tone::kService, scheme);
    case MoneyBar::Part::Use::MethodFee:
      return ColorOf(tone::kMethod, scheme);
    case MoneyBar::Part::Use::Left:
      return ColorOf(tone::kLeft, scheme);
  }
  return {};
}

QColor RoleColor(Color role, Scheme scheme) {
  return ColorOf(ToneOf(role), scheme);
}

}  // namespace benevix
