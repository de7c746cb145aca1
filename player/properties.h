#pragma once

#include <optional>
#include <string>

#include "controls/controls.h"
#include "player/front_end.h"

namespace benevix {

// A property as the structs hold it; nothing when there is no such property, row or element.
std::optional<std::string> ReadProperty(const Desk& desk, const Target& target,
                                        const std::string& property);

std::string BooleanText(bool value);

// &H and the eight hexadecimal digits.
std::string ColorText(Color color);

}  // namespace benevix
