#include "mirror/bindings/make_binding.h"

#include <QTimer>

namespace benevix {
namespace {

// A timer ticks while the struct's is enabled.
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

}  // namespace

std::unique_ptr<Binding> MakeBinding(const NamedControl& control, QWidget& window,
                                     BindingContext& context) {
  if (Timer* const timer = control.As<Timer>()) {
    return std::make_unique<TimerBinding>(*timer, context);
  }
  QString name = QString::fromStdString(control.name);
  if (control.index >= 0) name += QLatin1Char('_') + QString::number(control.index);
  QWidget* const widget = window.findChild<QWidget*>(name);
  if (widget == nullptr) return nullptr;
  for (const auto make : {MakeTextBinding, MakeButtonBinding, MakeListBinding, MakeTableBinding,
                          MakeDisplayBinding}) {
    if (auto binding = make(control, *widget, context)) return binding;
  }
  return nullptr;
}

}  // namespace benevix
