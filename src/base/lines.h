#pragma once

#include <string_view>
#include <vector>

namespace benevix {

// The lines of a text without their ends, LF or CR LF; the last one may have none.
std::vector<std::string_view> Lines(std::string_view text);

// Returns the part of `text` before the first `separator` (all of it without one) and removes it
// and the separator from `text`.
std::string_view CutField(std::string_view& text, char separator);

}  // namespace benevix
