#include <QTimer>

#include "mirror/bindings/bound.h"
#include "mirror/look/texts.h"

namespace benevix {

void ApplyBase(const Control& control, QWidget& widget) {
  if (widget.isEnabledTo(widget.parentWidget()) != control.enabled) {
    widget.setEnabled(control.enabled);
  }
  if (widget.isHidden() == control.visible) widget.setVisible(control.visible);
  const QString tip = Drawn(control.toolTip);
  if (widget.toolTip() != tip) widget.setToolTip(tip);
}

void SetText(QPalette& palette, QPalette::ColorRole role, Color color, Color design,
             Scheme scheme) {
  if (color == design) return;
  palette.setColor(QPalette::Active, role, RoleColor(color, scheme));
  palette.setColor(QPalette::Inactive, role, RoleColor(color, scheme));
}

void SetGround(QPalette& palette, QPalette::ColorRole role, Color color, Color design,
               Scheme scheme) {
  if (color != design) palette.setColor(role, RoleColor(color, scheme));
}

void ApplyPalette(QWidget& widget, const QPalette& palette) {
  if (widget.palette() != palette) widget.setPalette(palette);
}

namespace {

// Pictures and other plain widgets.
class PlainBinding : public Bound<Control, QWidget> {
 public:
  using Bound::Bound;
  void Apply() override { ApplyBase(control_, widget_); }
};

// A timer has no widget; it ticks while the struct's is enabled.
class TimerBinding : public Binding {
 public:
  TimerBinding(Timer& timer, BindingContext& context) : timer_(timer), context_(context) {
    QObject::connect(&ticker_, &QTimer::timeout, &ticker_, [this] { context_.input.Tick(timer_); });
  }
  void Apply() override {
    const bool runs = context_.runTimers && timer_.enabled && timer_.interval > 0;
    if (ticker_.isActive() == runs) return;
    if (runs) {
      ticker_.start(timer_.interval);
    } else {
      ticker_.stop();
    }
  }
  [[nodiscard]] QWidget* Widget() const override { return nullptr; }

 private:
  Timer& timer_;
  BindingContext& context_;
  QTimer ticker_;
};

std::unique_ptr<Binding> Bind(Control& control, QWidget& widget, BindingContext& context) {
  return std::make_unique<PlainBinding>(control, widget, context);
}

}  // namespace

bool IsMenu(const NamedControl& control) {
  return control.As<MenuItem>() != nullptr || control.As<MenuArray>() != nullptr;
}

QString WidgetName(const NamedControl& control) {
  QString name = QString::fromStdString(control.name);
  if (control.index >= 0) name += QLatin1Char('_') + QString::number(control.index);
  return name;
}

std::unique_ptr<Binding> MakeBinding(const NamedControl& control, QWidget& window,
                                     BindingContext& context) {
  if (Timer* const timer = control.As<Timer>()) {
    return std::make_unique<TimerBinding>(*timer, context);
  }
  QWidget* const widget = window.findChild<QWidget*>(WidgetName(control));
  if (widget == nullptr) return nullptr;
  return std::visit([&](auto* any) { return Bind(*any, *widget, context); }, control.any);
}

}  // namespace benevix
