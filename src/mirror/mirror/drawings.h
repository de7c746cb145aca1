#pragma once

#include <QWidget>
#include <memory>
#include <string>

namespace benevix {

// A new widget of a window's drawing, by the window's name.
std::unique_ptr<QWidget> MakeDrawing(const std::string& name);

}  // namespace benevix
