#include "session/modes.h"

namespace benevix {

void SetFeeMode(frmBVX& main, FeeMode mode) {
  const bool deduct = mode == FeeMode::Deduct;
  main.mnuAddFees.checked = !deduct;
  main.mnuDeductFees.checked = deduct;
  Choose(main.Option3, deduct ? fee_option::kDeduct : fee_option::kAdd);
}

void EnableFeeMode(frmBVX& main, bool enabled) {
  main.mnuAddFees.enabled = enabled;
  main.mnuDeductFees.enabled = enabled;
  for (OptionButton& option : main.Option3) option.enabled = enabled;
}

std::string DeliveryText(const frmBVX& main, bool pool) {
  if (!pool) return main.Option2[delivery_option::kStandAlone].caption;
  const std::string& caption = main.Option2[delivery_option::kPool].caption;
  return caption.substr(caption.find(' ') + 1);
}

void SetDonationMode(frmBVX& main, DonationMode mode) {
  const bool percentage = mode == DonationMode::Percentage;
  main.mnuDirectCurr.checked = !percentage;
  main.mnuPercentBal.checked = percentage;
  main.Label3.caption = percentage ? "%" : "$";
}

}  // namespace benevix
