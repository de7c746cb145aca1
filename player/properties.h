#pragma once

#include <optional>
#include <string>

#include "controls/controls.h"
#include "player/front_end.h"

namespace benevix {

// A property as the structs hold it; nothing when there is no such property, row or element.
std::optional<std::string> ReadProperty(const Desk& desk, const Target& target,
                                        const std::string& property);

// A program-wide value by its name; nothing when there is none of that name.
std::optional<std::string> ReadValue(const Program& program, const std::string& name);

// The number I of "NAME(I)".
std::optional<int> IndexIn(const std::string& property, const std::string& name);

// The cell that "Row(R).Text" or "Row(R).SubItem(N)" names: rows from 1, the text is column 0.
struct Cell {
  int row = 0;
  int column = 0;
};
std::optional<Cell> CellIn(const std::string& property);

std::string BooleanText(bool value);

// &H and the eight hexadecimal digits.
std::string ColorText(Color color);

}  // namespace benevix
