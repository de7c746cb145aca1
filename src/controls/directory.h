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
      // "Name(1)": the array has this element only.
      const std::string text = name;
      const auto bracket = text.find('(');
      const bool alone = bracket == std::string::npos;
      controls.push_back(
          {text.substr(0, bracket), alone ? -1 : std::stoi(text.substr(bracket + 1)), &control});
    }
  });
  return controls;
}

}  // namespace benevix
