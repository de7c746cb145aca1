#pragma once

#include <memory>

#include "controls/directory.h"
#include "mirror/bindings/binding.h"

namespace benevix {

// The binding of a control to the widget that bears its name in the drawing: Text1, or Text1_2 for
// an element of an array. A timer needs no widget. Null for a control that is not drawn, and for a
// menu (see MenuBinding).
std::unique_ptr<Binding> MakeBinding(const NamedControl& control, QWidget& window,
                                     BindingContext& context);

// By the kinds of controls; null for a control or a widget of another kind.
std::unique_ptr<Binding> MakeButtonBinding(const NamedControl& control, QWidget& widget,
                                           BindingContext& context);
std::unique_ptr<Binding> MakeDisplayBinding(const NamedControl& control, QWidget& widget,
                                            BindingContext& context);
std::unique_ptr<Binding> MakeListBinding(const NamedControl& control, QWidget& widget,
                                         BindingContext& context);
std::unique_ptr<Binding> MakeTableBinding(const NamedControl& control, QWidget& widget,
                                          BindingContext& context);
std::unique_ptr<Binding> MakeTextBinding(const NamedControl& control, QWidget& widget,
                                         BindingContext& context);

}  // namespace benevix
