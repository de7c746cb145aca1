#pragma once

#include "forms/frmBVX.h"

namespace benevix {

namespace hint {
inline constexpr int kPreferences = 1;
inline constexpr int kAnonymous = 2;
inline constexpr int kMyName = 3;
inline constexpr int kOtherName = 4;
inline constexpr int kSelectFirst = 5;
inline constexpr int kContinue = 6;
inline constexpr int kSelectAnother = 7;
inline constexpr int kFinalized = 8;
inline constexpr int kTypeBudget = 9;
inline constexpr int kTypeAmount = 10;
}  // namespace hint

// Shows the hint of a step in the hint line (Label6); an unknown step changes nothing.
void ShowHint(frmBVX& main, int step);

}  // namespace benevix
