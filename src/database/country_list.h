#pragma once

#include <string>
#include <vector>

#include "core/codec.h"
#include "platform/files.h"

namespace benevix {

// The country names of a scrambled list file, in its order. Raises RuntimeError when the file is
// missing or empty, its field is not hexadecimal, or the last name lacks its comma.
std::vector<std::string> ReadCountryList(const Files& files, const std::string& file,
                                         const TextCodec& codec);

}  // namespace benevix
