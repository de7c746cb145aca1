// What is pressed.

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "mirror/bindings/bound.h"
#include "mirror/bindings/mnemonics.h"
#include "mirror/look/texts.h"

namespace benevix {
namespace {

class ButtonBinding : public Bound<Button, QPushButton> {
 public:
  ButtonBinding(Button& button, QPushButton& widget, BindingContext& context)
      : Bound(button, widget, context) {
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

  void Apply() override {
    ApplyBase(control_, widget_);
    const QString text = WithMnemonic(Drawn(control_.caption), mnemonic_);
    if (widget_.text() != text) widget_.setText(text);
  }

  [[nodiscard]] QString MnemonicCaption() const override { return ToQString(control_.caption); }
  void SetMnemonic(QChar letter) override { mnemonic_ = letter; }

 private:
  QChar mnemonic_;
};

class OptionBinding : public Bound<OptionButton, QRadioButton> {
 public:
  OptionBinding(OptionButton& option, QRadioButton& widget, BindingContext& context)
      : Bound(option, widget, context), theme_(widget.palette()) {
    QObject::connect(&widget, &QRadioButton::clicked, &widget,
                     [this] { context_.input.Choose(control_); });
  }

  void Apply() override {
    ApplyBase(control_, widget_);
    const QString text = Drawn(control_.caption);
    if (widget_.text() != text) widget_.setText(text);
    const bool colored = control_.backColor != OptionButton().backColor;
    QPalette palette = theme_;
    SetGround(palette, widget_.backgroundRole(), control_.backColor, OptionButton().backColor,
              context_.scheme);
    ApplyPalette(widget_, palette);
    widget_.setAutoFillBackground(colored);
    if (widget_.isChecked() == control_.value) return;
    // The last chosen of a group cannot be taken back while the group keeps one chosen.
    widget_.setAutoExclusive(false);
    widget_.setChecked(control_.value);
    widget_.setAutoExclusive(true);
  }

 private:
  QPalette theme_;
};

class CheckBinding : public Bound<CheckBox, QCheckBox> {
 public:
  CheckBinding(CheckBox& box, QCheckBox& widget, BindingContext& context)
      : Bound(box, widget, context) {
    QObject::connect(&widget, &QCheckBox::clicked, &widget,
                     [this] { context_.input.Toggle(control_); });
  }

  void Apply() override {
    ApplyBase(control_, widget_);
    const QString text = Drawn(control_.caption);
    if (widget_.text() != text) widget_.setText(text);
    if (widget_.isChecked() != (control_.value != 0)) widget_.setChecked(control_.value != 0);
  }
};

}  // namespace

std::unique_ptr<Binding> Bind(Button& button, QWidget& widget, BindingContext& context) {
  return BindTo<ButtonBinding, QPushButton>(button, widget, context);
}

std::unique_ptr<Binding> Bind(OptionButton& option, QWidget& widget, BindingContext& context) {
  return BindTo<OptionBinding, QRadioButton>(option, widget, context);
}

std::unique_ptr<Binding> Bind(CheckBox& box, QWidget& widget, BindingContext& context) {
  return BindTo<CheckBinding, QCheckBox>(box, widget, context);
}

}  // namespace benevix
