#pragma once

#include <filesystem>

namespace benevix {

// Writes an organization list of the given size, the same one every time. With 2,000,000
// organizations in 250 countries it takes about 95 MB.
void MakeList(const std::filesystem::path& file, int organizations, int countries);

}  // namespace benevix
