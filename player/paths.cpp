#include "player/paths.h"

#include <string_view>
#include <vector>

#include "player/script.h"
#include "player/words.h"

namespace benevix {
namespace {

// A part of a path: a name, with a number in brackets or without.
struct PathPart {
  std::string name;
  int index = -1;  // -1 without brackets
};

PathPart Part(const std::string& text) {
  const auto bracket = text.find('(');
  if (bracket == std::string::npos && !text.empty()) return {text};
  const bool closed = bracket != 0 && text.size() > bracket + 2 && text.back() == ')';
  const auto index =
      closed ? WholeNumberIn(text.substr(bracket + 1, text.size() - bracket - 2)) : std::nullopt;
  if (!index || *index < 0) throw CannotBeDone("\"" + text + "\" names nothing");
  return {text.substr(0, bracket), *index};
}

// The parts between the points.
std::vector<PathPart> PathParts(std::string_view path) {
  std::vector<PathPart> parts;
  for (;;) {
    const auto point = path.find('.');
    parts.push_back(Part(std::string(path.substr(0, point))));
    if (point == std::string_view::npos) return parts;
    path.remove_prefix(point + 1);
  }
}

Desk::Entry& FindWindow(Desk& desk, const PathPart& part) {
  for (Desk::Entry& entry : desk.Entries()) {
    if (entry.name == part.name && part.index < 0) return entry;
  }
  throw CannotBeDone("there is no window " + part.name);
}

// Null when the part names no control but a property of the window.
const NamedControl* ControlNamed(const Desk::Entry& window, const PathPart& part) {
  bool isArray = false;
  for (const NamedControl& control : window.controls) {
    if (control.name != part.name) continue;
    const bool isMenuArray = control.As<MenuArray>() != nullptr;
    if (isMenuArray ? part.index >= 0 : part.index == control.index) return &control;
    isArray = true;
  }
  if (isArray) throw CannotBeDone("there is no such element of " + part.name);
  return nullptr;
}

}  // namespace

Named Find(Program& program, const std::string& path) {
  const std::vector<PathPart> parts = PathParts(path);
  Named named;
  Target& target = named.target;
  target.window = &FindWindow(program.TheDesk(), parts.front());
  auto part = parts.begin() + 1;
  if (part != parts.end()) target.control = ControlNamed(*target.window, *part);
  if (target.control != nullptr) {
    if (target.control->As<MenuArray>() != nullptr) target.element = part->index;
    ++part;
  }
  for (; part != parts.end(); ++part) {
    if (!named.property.empty()) named.property += '.';
    named.property += part->name;
    if (part->index >= 0) named.property += "(" + std::to_string(part->index) + ")";
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
