#pragma once

#include <string>
#include <vector>

#include "core/codec.h"
#include "platform/files.h"

namespace benevix {

// The country names of a scrambled list file, in file order. The file's first field holds the
// names, each followed by a comma, scrambled in mode kCountries. Raises RuntimeError when the file
// is missing or empty, the field is not hexadecimal, or the last comma is missing.
std::vector<std::string> ReadCountryList(const Files& files, const FilePath& file,
                                         const TextCodec& codec);

}  // namespace benevix
