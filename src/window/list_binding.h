#pragma once

#include <memory>

#include "window/binding.h"

namespace benevix {

// Binds a ListView to a table view of its drawing.
std::unique_ptr<Binding> MakeListBinding(ListView& list, QWidget& widget, BindingContext& context);

}  // namespace benevix
