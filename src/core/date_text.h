#pragma once

#include <string>

#include "platform/clock.h"

namespace benevix {

// Month-day-year, "03-05-2003", and hours and minutes, "12:34".
std::string DateText(const DateTime& time);
std::string TimeText(const DateTime& time);

}  // namespace benevix
