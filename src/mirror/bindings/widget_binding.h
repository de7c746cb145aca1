#pragma once

#include <QPalette>
#include <initializer_list>
#include <memory>

#include "controls/directory.h"
#include "mirror/bindings/binding.h"

namespace benevix {

// What all kinds of controls have in common: enabled, visible and the tool tip.
void ApplyCommon(const Control& control, QWidget& widget);

// The base of the bindings of a control of kind C to a widget of kind W.
template <class C, class W>
class WidgetBinding : public Binding {
 public:
  using ControlKind = C;
  using WidgetKind = W;

  WidgetBinding(C& control, W& widget, BindingContext& context)
      : control_(control), widget_(widget), context_(context) {}

  void Apply() final {
    ApplyCommon(control_, widget_);
    ApplyKind();
  }
  [[nodiscard]] QWidget* Widget() const final { return &widget_; }

 protected:
  // What only this kind of control has.
  virtual void ApplyKind() {}

  C& control_;
  W& widget_;
  BindingContext& context_;
};

// The first of the bindings that is for this kind of control and of widget, null when none is.
template <class B, class... Others>
std::unique_ptr<Binding> MakeFirst(const NamedControl& control, QWidget& widget,
                                   BindingContext& context) {
  auto* const known = control.As<typename B::ControlKind>();
  auto* const drawn = dynamic_cast<typename B::WidgetKind*>(&widget);
  if (known != nullptr && drawn != nullptr) return std::make_unique<B>(*known, *drawn, context);
  if constexpr (sizeof...(Others) > 0) return MakeFirst<Others...>(control, widget, context);
  return nullptr;
}

// The colours of a control in the palette of its widget.
class ControlColors {
 public:
  struct Part {
    QPalette::ColorRole role;
    Color color;
    Color design;  // leaves the theme's colour
  };

  // The scheme may change.
  ControlColors(QWidget& widget, const Scheme& scheme)
      : widget_(widget), scheme_(scheme), shown_(scheme), theme_(ThemeOf(widget)) {}

  // While the widget is disabled its texts keep the theme's colours.
  void Apply(std::initializer_list<Part> texts, std::initializer_list<Part> grounds);

 private:
  // With the colour of its look.
  static QPalette ThemeOf(const QWidget& widget) {
    widget.ensurePolished();
    return widget.palette();
  }

  QWidget& widget_;
  const Scheme& scheme_;
  Scheme shown_;
  QPalette theme_;  // of the shown scheme
};

}  // namespace benevix
