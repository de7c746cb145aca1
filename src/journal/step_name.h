#pragma once

#include <string>

#include "journal/timeline.h"

namespace benevix {

// What a step was, as far as it follows from what the step changed: "Donation of 120.00 to Water
// For All", "Budget raised by 100.00".
std::string StepName(const std::vector<FieldChange>& fields, const std::vector<RowChange>& rows);

}  // namespace benevix
