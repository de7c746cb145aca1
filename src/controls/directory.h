#pragma once

#include <string>
#include <type_traits>
#include <vector>

#include "controls/controls.h"

namespace benevix {

// A control under its name. Elements of fixed arrays stand one by one with their index; a menu
// array stands as one.
struct NamedControl {
  std::string name;
  int index = -1;  // -1 when it is no element of an array
  AnyControl any;

  [[nodiscard]] Control& Base() const {
    return *std::visit([](auto* control) -> Control* { return control; }, any);
  }
  template <class C>
  [[nodiscard]] C* As() const {
    C* const* const found = std::get_if<C*>(&any);
    return found ? *found : nullptr;
  }
};

using Directory = std::vector<NamedControl>;

// A control that is no element of an array, or the only one of it, which its name then says:
// "Name(1)".
[[nodiscard]] NamedControl NamedAlone(const std::string& name, AnyControl any);

// All controls of a window in its own order, which is the tab order. Each window struct brings a
// `visit(window, f)` that calls f(name, control) for every control and array.
template <class W>
Directory ControlsOf(W& window) {
  Directory controls;
  visit(window, [&controls](const char* name, auto& control) {
    if constexpr (std::is_array_v<std::remove_reference_t<decltype(control)>>) {
      int index = 0;
      for (auto& element : control) controls.push_back({name, index++, &element});
    } else {
      controls.push_back(NamedAlone(name, &control));
    }
  });
  return controls;
}

}  // namespace benevix
