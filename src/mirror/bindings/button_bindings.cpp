// The bindings of buttons, options and check boxes.

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <functional>
#include <memory>

#include "mirror/bindings/make_binding.h"
#include "mirror/bindings/mnemonics.h"
#include "mirror/bindings/widget_binding.h"
#include "mirror/look/texts.h"

namespace benevix {
namespace {

class ButtonBinding : public WidgetBinding<Button, QPushButton> {
 public:
  ButtonBinding(Button& button, QPushButton& widget, BindingContext& context)
      : WidgetBinding(button, widget, context) {
    widget.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&widget, &QPushButton::clicked, &widget,
                     [this] { context_.input.Click(control_); });
    QObject::connect(&widget, &QWidget::customContextMenuRequested, &widget,
                     [this](const QPoint& place) {
                       context_.popUpPlace = widget_.mapToGlobal(place);
                       context_.input.MouseUp(control_, MouseButton::Right);
                       context_.popUpPlace = {};
                     });
  }

  [[nodiscard]] QString MnemonicCaption() const override { return ToQString(control_.caption); }
  void SetMnemonic(QChar letter) override { mnemonic_ = letter; }

 private:
  void ApplyKind() override {
    widget_.setText(WithMnemonic(Drawn(control_.caption), mnemonic_));
    // Never narrower than its own text, nor than a short word and its usual padding.
    widget_.ensurePolished();
    const int least = widget_.fontMetrics().horizontalAdvance(QStringLiteral("Continue")) + 32;
    widget_.setMinimumWidth(std::max(least, widget_.sizeHint().width()));
  }

  QChar mnemonic_;
};

// Calls `act` for each click, and when a screen reader checks the button, which is no click to the
// toolkit.
void OnCheck(QAbstractButton& widget, const BindingContext& context,
             const std::function<void()>& act) {
  auto clicking = std::make_shared<bool>(false);  // from the press to the release
  QObject::connect(&widget, &QAbstractButton::pressed, &widget, [clicking] { *clicking = true; });
  QObject::connect(&widget, &QAbstractButton::released, &widget, [clicking] { *clicking = false; });
  QObject::connect(&widget, &QAbstractButton::clicked, &widget, act);
  QObject::connect(&widget, &QAbstractButton::toggled, &widget, [clicking, &context, act] {
    if (!*clicking && !context.applying) act();
  });
}

class OptionBinding : public WidgetBinding<OptionButton, QRadioButton> {
 public:
  OptionBinding(OptionButton& option, QRadioButton& widget, BindingContext& context)
      : WidgetBinding(option, widget, context), colors_(widget, context.scheme) {
    // The one that is unchecked for another one is not meant.
    OnCheck(widget, context, [this] {
      if (widget_.isChecked()) context_.input.Choose(control_);
    });
  }

 private:
  void ApplyKind() override {
    widget_.setText(Drawn(control_.caption));
    const Color design = OptionButton().backColor;
    colors_.Apply({}, {{widget_.backgroundRole(), control_.backColor, design}});
    widget_.setAutoFillBackground(control_.backColor != design);
    if (widget_.isChecked() == control_.value) return;
    // An exclusive button that is checked could not be unchecked.
    widget_.setAutoExclusive(false);
    widget_.setChecked(control_.value);
    widget_.setAutoExclusive(true);
  }

  ControlColors colors_;
};

class CheckBinding : public WidgetBinding<CheckBox, QCheckBox> {
 public:
  CheckBinding(CheckBox& box, QCheckBox& widget, BindingContext& context)
      : WidgetBinding(box, widget, context) {
    OnCheck(widget, context, [this] { context_.input.Toggle(control_); });
  }

 private:
  void ApplyKind() override {
    widget_.setText(Drawn(control_.caption));
    widget_.setChecked(control_.value != 0);
  }
};

}  // namespace

std::unique_ptr<Binding> MakeButtonBinding(const NamedControl& control, QWidget& widget,
                                           BindingContext& context) {
  return MakeFirst<ButtonBinding, OptionBinding, CheckBinding>(control, widget, context);
}

}  // namespace benevix
