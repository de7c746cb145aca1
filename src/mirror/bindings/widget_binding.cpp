#include "mirror/bindings/widget_binding.h"

#include <QStyle>

#include "mirror/look/texts.h"

namespace benevix {

void ApplyCommon(const Control& control, QWidget& widget) {
  // The widget's own state, whatever that of its frame is.
  if (widget.isEnabledTo(widget.parentWidget()) != control.enabled) {
    widget.setEnabled(control.enabled);
  }
  if (widget.isHidden() == control.visible) widget.setVisible(control.visible);
  const QString tip = Drawn(control.toolTip);
  if (widget.toolTip() != tip) widget.setToolTip(tip);
}

void ControlColors::Apply(std::initializer_list<Part> texts, std::initializer_list<Part> grounds) {
  if (shown_ != scheme_) {
    shown_ = scheme_;
    widget_.setPalette({});
    widget_.style()->polish(&widget_);  // the colour of its look
    theme_ = widget_.palette();
  }
  QPalette palette = theme_;
  for (const auto& [role, color, design] : texts) {
    if (color == design) continue;
    palette.setColor(QPalette::Active, role, RoleColor(color, scheme_));
    palette.setColor(QPalette::Inactive, role, RoleColor(color, scheme_));
  }
  for (const auto& [role, color, design] : grounds) {
    if (color != design) palette.setColor(role, RoleColor(color, scheme_));
  }
  if (widget_.palette() != palette) widget_.setPalette(palette);
}

}  // namespace benevix
