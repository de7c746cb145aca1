#include "player/targets.h"

#include <algorithm>
#include <vector>

#include "player/line_kinds.h"
#include "player/path.h"

namespace benevix {
namespace {

Desk::Entry& FindWindow(Desk& desk, const PathPart& part) {
  for (Desk::Entry& entry : desk.Entries()) {
    if (entry.name == part.name && part.index < 0) return entry;
  }
  throw CannotBeDone("there is no window " + part.name);
}

bool Names(const PathPart& part, const NamedControl& control) {
  const bool isMenuArray = control.As<MenuArray>() != nullptr;
  return control.name == part.name && (isMenuArray ? part.index >= 0 : part.index == control.index);
}

}  // namespace

Named Find(Program& program, const std::string& path) {
  std::vector<PathPart> parts = PathParts(path);
  Named named;
  named.target.window = &FindWindow(program.TheDesk(), parts.front());
  std::size_t next = 1;
  if (next < parts.size()) {
    const PathPart& part = parts[next];
    bool isArray = false;
    for (const NamedControl& control : named.target.window->controls) {
      isArray = isArray || control.name == part.name;
      if (!Names(part, control)) continue;
      named.target.control = &control;
      if (control.As<MenuArray>() != nullptr) named.target.element = part.index;
      ++next;
      break;
    }
    if (named.target.control == nullptr && isArray) {
      throw CannotBeDone("there is no such element of " + part.name);
    }
  }
  for (; next < parts.size(); ++next) {
    const PathPart& part = parts[next];
    if (!named.property.empty()) named.property += '.';
    named.property += part.name;
    if (part.index >= 0) named.property += "(" + std::to_string(part.index) + ")";
  }
  return named;
}

Target FindControl(Program& program, const std::string& path) {
  const Named named = Find(program, path);
  if (named.target.control == nullptr || !named.property.empty()) {
    throw CannotBeDone("there is no control " + path);
  }
  return named.target;
}

std::string NameOf(const NamedControl& control) {
  return control.index < 0 ? control.name
                           : control.name + "(" + std::to_string(control.index) + ")";
}

std::string WhyNot(Program& program, const Target& target) {
  const Desk& desk = program.TheDesk();
  const Desk::Entry& window = *target.window;
  if (desk.Ended()) return "the program has ended";
  if (!desk.IsShown(*window.window)) return window.name + " is not shown";
  if (!desk.IsEnabled(*window.window)) return window.name + " is disabled";
  if (!desk.IsUsable(*window.window)) return "a modal window holds " + window.name + " up";
  if (target.control != nullptr) {
    const Control& control = target.control->Base();
    if (!control.visible) return target.control->name + " is hidden";
    if (!control.enabled) return target.control->name + " is disabled";
    if (!desk.IsUsable(window, control)) return "what holds it is disabled or hidden";
  }
  return "that is not to be done there";
}

}  // namespace benevix
