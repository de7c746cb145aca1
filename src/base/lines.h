#pragma once

#include <string_view>
#include <vector>

namespace benevix {

// The lines of a text; a line ends at LF or CR LF, the last one at the end of the text.
std::vector<std::string_view> Lines(std::string_view text);

// Cuts the text before the first `separator` off the front of `text`, the separator with it.
// Without one the whole text is cut off.
std::string_view CutField(std::string_view& text, char separator);

}  // namespace benevix
