#pragma once

#include "forms/frmBVX.h"

namespace benevix {

// Whether fees come on top of the Budget or out of it: the menu's check marks and the options say
// the same.
enum class FeeMode { Add, Deduct };
void SetFeeMode(frmBVX& main, FeeMode mode);

// The fee mode cannot be changed once something has been given in the session.
void EnableFeeMode(frmBVX& main, bool enabled);

// Whether donations are typed as amounts or as percentages of the Balance.
enum class DonationMode { Currency, Percentage };
void SetDonationMode(frmBVX& main, DonationMode mode);

}  // namespace benevix
