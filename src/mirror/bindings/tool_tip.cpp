#include "mirror/bindings/tool_tip.h"

#include <QKeySequence>
#include <QToolTip>

#include "mirror/look/texts.h"

namespace benevix {

bool ShowTipWithShortcut(const Control& control, QWidget& widget, const QPoint& globalPlace) {
  const QString keys =
      QKeySequence(QLatin1String(control.shortcut)).toString(QKeySequence::NativeText);
  if (keys.isEmpty()) return false;
  const QString tip = ToQString(control.toolTip);
  QToolTip::showText(globalPlace, tip.isEmpty() ? keys : tip + QStringLiteral(" (%1)").arg(keys),
                     &widget);
  return true;
}

}  // namespace benevix
