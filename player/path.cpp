#include "player/path.h"

#include "player/line_kinds.h"
#include "player/numbers.h"

namespace benevix {
namespace {

PathPart Part(const std::string& text) {
  const auto bracket = text.find('(');
  if (bracket == std::string::npos && !text.empty()) return {text};
  const bool closed = bracket != 0 && text.size() > bracket + 2 && text.back() == ')';
  const auto index =
      closed ? WholeNumberIn(text.substr(bracket + 1, text.size() - bracket - 2)) : std::nullopt;
  if (!index || *index < 0) throw CannotBeDone("\"" + text + "\" names nothing");
  return {text.substr(0, bracket), *index};
}

}  // namespace

std::vector<PathPart> PathParts(std::string_view path) {
  std::vector<PathPart> parts;
  for (;;) {
    const auto point = path.find('.');
    parts.push_back(Part(std::string(path.substr(0, point))));
    if (point == std::string_view::npos) return parts;
    path.remove_prefix(point + 1);
  }
}

}  // namespace benevix
