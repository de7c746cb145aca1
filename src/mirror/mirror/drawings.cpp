#include "mirror/mirror/drawings.h"

#include <QMainWindow>
#include <stdexcept>
#include <string_view>

#include "all_drawings.h"

namespace benevix {
namespace {

template <class Drawing, class Widget>
std::unique_ptr<QWidget> Draw(void (Drawing::*setupUi)(Widget*)) {
  auto widget = std::make_unique<Widget>();
  (Drawing().*setupUi)(widget.get());
  return widget;
}

}  // namespace

std::unique_ptr<QWidget> MakeDrawing(const std::string& name) {
  std::unique_ptr<QWidget> drawn;
  ForEachDrawing([&](std::string_view drawing, auto setupUi) {
    if (drawing == name) drawn = Draw(setupUi);
  });
  if (!drawn) throw std::logic_error("no drawing of " + name);
  return drawn;
}

}  // namespace benevix
