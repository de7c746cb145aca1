#include "mirror/look/theme.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPalette>
#include <map>
#include <utility>

#include "mirror/look/theme_style.h"

// A resource in a static library is linked only when it is asked for, outside every namespace.
static void InitResources() {
  Q_INIT_RESOURCE(benevix);
}

namespace benevix {
namespace {

struct Tone {
  QRgb light, dark;
};

// Every text colour reaches a contrast of 4.5 to 1 on each of the grounds it is drawn on.
namespace tone {
constexpr Tone kWindow{0xf3f5f7, 0x1d2227};  // ground of the windows
constexpr Tone kBase{0xffffff, 0x15191d};    // ground of boxes, lists and cards
constexpr Tone kFace{0xffffff, 0x2b3239};    // buttons
constexpr Tone kHover{0xe9edf0, 0x363f48};   // button under the mouse
constexpr Tone kLine{0xd5dbe1, 0x343c45};    // borders that only divide
constexpr Tone kEdge{0x7f8b97, 0x6b7784};    // borders that can be pressed or typed in
constexpr Tone kText{0x1b252e, 0xe6eaee};
constexpr Tone kMuted{0x4e5964, 0xa3adb8};  // less important text, disabled text
constexpr Tone kAccent{0x0b6e69, 0x58c4ba};
constexpr Tone kAccentHover{0x095a56, 0x7ad4cb};
constexpr Tone kOnAccent{0xffffff, 0x0b1f1d};  // text on the accent
constexpr Tone kTint{0xd9eeec, 0x163a38};      // the guidance line's ground
constexpr Tone kOnTint{0x083f3c, 0xd2f1ee};
constexpr Tone kGiven{0xe6eaee, 0x2e353c};     // ground of boxes that no longer take an entry
constexpr Tone kComputed{0xe8f1f1, 0x1c3030};  // ground of the Balance
constexpr Tone kSand{0xfaf9f3, 0x1b1c1a};      // ground of the fee modes
constexpr Tone kMarked{0xfbe3a6, 0x544418};    // ground of a word that was searched for
constexpr Tone kRed{0xb3201b, 0xff8f88};
constexpr Tone kGreen{0x1f8f45, 0x4fc27a};
constexpr Tone kLit{0xc47400, 0xffb84d};      // the news indicator with news
constexpr Tone kService{0xb86a00, 0xf0ad4e};  // parts of the money bar, beside the accent
constexpr Tone kMethod{0x7b4fa0, 0xc39be0};
constexpr Tone kLeft{0xb9c4ce, 0x55616d};
}  // namespace tone

QColor ColorOf(const Tone& tone, Scheme scheme) {
  return scheme == Scheme::Light ? tone.light : tone.dark;
}

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

QString SheetOf(Scheme scheme, QFont font) {
  QFile file(QStringLiteral(":/theme.qss"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString sheet = QString::fromLatin1(file.readAll());
  const auto set = [&sheet](const char* name, const QString& value) {
    sheet.replace(QLatin1Char('@') + QLatin1String(name), value);
  };
  // "accentHover" before "accent", with which it begins.
  for (const auto& [name, tone] : {std::pair{"accentHover", tone::kAccentHover},
                                   {"accent", tone::kAccent},
                                   {"onAccent", tone::kOnAccent},
                                   {"onTint", tone::kOnTint},
                                   {"tint", tone::kTint},
                                   {"window", tone::kWindow},
                                   {"base", tone::kBase},
                                   {"face", tone::kFace},
                                   {"hover", tone::kHover},
                                   {"line", tone::kLine},
                                   {"edge", tone::kEdge},
                                   {"text", tone::kText},
                                   {"muted", tone::kMuted},
                                   {"warning", tone::kRed},
                                   {"given", tone::kGiven}}) {
    set(name, ColorOf(tone, scheme).name());
  }
  const double points = QFontInfo(font).pointSizeF();
  set("small", QString::number(points * 0.9));
  set("medium", QString::number(points * 1.15));
  set("large", QString::number(points * kMoneyScale));
  const QFontMetrics plain(font);
  set("title", QString::number(plain.height() + 6));
  set("track", QString::number(plain.height() + 8));
  QFont small = font;
  small.setPointSizeF(points * 0.9);
  const QFontMetrics note(small);
  set("aside", QString::number(note.horizontalAdvance(QStringLiteral("Opens when 100.00 m"))));
  set("twolines", QString::number(2 * note.lineSpacing()));
  // A minimum width in a style sheet replaces the one of the text, so the text must fit into it.
  font.setBold(true);
  const auto width = [&font](const char* text) {
    return QString::number(QFontMetrics(font).horizontalAdvance(QLatin1String(text)));
  };
  set("filter", width("Organizations that help people who were driven from their homes"));
  font.setPointSizeF(points * 1.15);
  set("guidance", QString::number(2 * QFontMetrics(font).lineSpacing()));
  font.setPointSizeF(points * kMoneyScale);
  set("amount", width("10,000.00"));
  set("mostAmount", width("1,000,000,000.00"));
  font.setPointSizeF(font.pointSizeF() * 9 / TextBox().fontSize);  // an accepted Budget
  constexpr int margin = 2;  // pixels of an edit's own, above and below its line
  set("money", QString::number(QFontMetrics(font).height() + margin));
  return sheet;
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
  QApplication::setStyle(new ThemeStyle);  // the application owns it
  ApplyScheme(app, scheme);
}

void ApplyScheme(QApplication& app, Scheme scheme) {
  QApplication::setPalette(PaletteOf(scheme));
  app.setStyleSheet(SheetOf(scheme, QApplication::font()));
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
