#pragma once

namespace benevix {

// Indexes into the control arrays of the main window.
namespace money_box {  // Text1
inline constexpr int kBudget = 0;
inline constexpr int kBalance = 1;
inline constexpr int kDonation = 2;
}  // namespace money_box

namespace donor_option {  // Option1
inline constexpr int kMyName = 0;
inline constexpr int kOtherName = 1;
inline constexpr int kAnonymous = 2;
}  // namespace donor_option

namespace delivery_option {  // Option2
inline constexpr int kPool = 0;
inline constexpr int kStandAlone = 1;
}  // namespace delivery_option

namespace fee_option {  // Option3
inline constexpr int kAdd = 0;
inline constexpr int kDeduct = 1;
}  // namespace fee_option

}  // namespace benevix
