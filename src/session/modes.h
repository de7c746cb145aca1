#pragma once

#include <string>

#include "forms/frmBVX.h"

namespace benevix {

// Whether fees are added to the Budget or deducted from it; sets the menu items and the options.
enum class FeeMode { Add, Deduct };
void SetFeeMode(frmBVX& main, FeeMode mode);

// The fee mode is locked after the first donation of a session.
void EnableFeeMode(frmBVX& main, bool enabled);

// A delivery as the rows name it: "Pool" of "Donors Pool", or the whole caption "Stand-alone".
std::string DeliveryText(const frmBVX& main, bool pool);

// Whether donations are typed as amounts or as percentages of the Balance.
enum class DonationMode { Currency, Percentage };
void SetDonationMode(frmBVX& main, DonationMode mode);

}  // namespace benevix
