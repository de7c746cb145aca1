#pragma once

#include <filesystem>

namespace benevix {

// Writes an organization list of the given size, always the same; 2,000,000 organizations in 250
// countries are about 95 MB. Raises std::runtime_error when it cannot be written.
void MakeList(const std::filesystem::path& file, int organizations, int countries);

}  // namespace benevix
