#pragma once

#include <string>

#include "controls/list_view.h"

namespace benevix {

// The donation of a row in a few lines: amount and fees, delivery and donor, what is asked for.
// Empty for a row without one.
std::string GiftNote(const ListView& list, int row);

}  // namespace benevix
