#pragma once

#include <QPalette>

#include "mirror/bindings/binding.h"

namespace benevix {

// What all widgets have in common.
void ApplyBase(const Control& control, QWidget& widget);

// A colour of the struct over the theme's; the design colour leaves the theme's. Disabled texts
// keep the theme's look.
void SetText(QPalette& palette, QPalette::ColorRole role, Color color, Color design, Scheme scheme);
void SetGround(QPalette& palette, QPalette::ColorRole role, Color color, Color design,
               Scheme scheme);
void ApplyPalette(QWidget& widget, const QPalette& palette);

// A control and the widget of the kind that its drawing has for it.
template <class C, class W>
class Bound : public Binding {
 public:
  Bound(C& control, W& widget, BindingContext& context)
      : control_(control), widget_(widget), context_(context) {}
  [[nodiscard]] QWidget* Widget() const override { return &widget_; }

 protected:
  C& control_;
  W& widget_;
  BindingContext& context_;
};

// The binding B of a control, null when the drawing has a widget of another kind for it.
template <class B, class W, class C>
std::unique_ptr<Binding> BindTo(C& control, QWidget& widget, BindingContext& context) {
  W* const found = dynamic_cast<W*>(&widget);
  if (found == nullptr) return nullptr;
  return std::make_unique<B>(control, *found, context);
}

// By the kind of control.
std::unique_ptr<Binding> Bind(TextBox& box, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(ComboBox& combo, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(Button& button, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(OptionButton& option, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(CheckBox& box, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(ListView& list, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(Label& label, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(Frame& frame, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(Shape& shape, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(ScrollBar& bar, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(ProgressBar& bar, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(MoneyBar& bar, QWidget& widget, BindingContext& context);
std::unique_ptr<Binding> Bind(PageViewer& viewer, QWidget& widget, BindingContext& context);

}  // namespace benevix
