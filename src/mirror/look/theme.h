#pragma once

#include <QColor>

#include "controls/controls.h"

class QApplication;

namespace benevix {

enum class Scheme { Light, Dark };

// The scheme that the desktop asks for. Reads the application's palette, so it must be called
// before ApplyTheme. The environment variable (light or dark) overrides it.
inline constexpr auto kSchemeVariable = "BENEVIX_SCHEME";
[[nodiscard]] Scheme DesktopScheme();

// Style and palette of all windows. Font sizes follow the application's font.
void ApplyTheme(QApplication& app, Scheme scheme);

// Another scheme for the theme that is applied.
void ApplyScheme(QApplication& app, Scheme scheme);

// Amounts in boxes of the look "money" are so much larger than other texts.
inline constexpr double kMoneyScale = 1.8;

// The colours of the list's rows.
struct ListColors {
  QColor heading, headingText;
  QColor given, edge;  // ground of a row with a donation, and the bar at its edge
  QColor marked;       // ground of a word that the filter has found
};
[[nodiscard]] ListColors ListColorsOf(Scheme scheme);

// The colour of a part of a money bar.
[[nodiscard]] QColor UseColor(MoneyBar::Part::Use use, Scheme scheme);

// What a colour of the structs looks like in the scheme.
[[nodiscard]] QColor RoleColor(Color role, Scheme scheme);

}  // namespace benevix
