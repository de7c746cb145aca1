#pragma once

#include <optional>

namespace benevix {

constexpr int kOrganizations = 2'000'000;
constexpr int kGiven = 1000;
constexpr int kFavorites = 5000;
constexpr auto kNowhere = "Zebra";  // a word that the list has not

// The benchmark starts itself for what must be measured in a new process: "--load FILE" and others,
// by which it writes a line of numbers. Returns the exit status; nothing for other arguments.
std::optional<int> RunAsChild(int argc, char** argv);

}  // namespace benevix
