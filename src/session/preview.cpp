#include "session/preview.h"

#include "base/format.h"
#include "base/runtime_error.h"
#include "session/totals.h"

namespace benevix {

void Preview::Show() {
  ShowEstimate();
  main_.ContinueNote.caption = WhatContinueWaitsFor();
}

// While nothing can be typed yet, the label stays as the session's steps left it.
void Preview::ShowEstimate() {
  const TextBox& box = main_.Text1[money_box::kDonation];
  Label& label = main_.Label8;
  label.foreColor = Label().foreColor;
  if (box.enabled || box.typed) label.visible = false;
  try {
    const auto estimate = donation_.EstimateTyped();
    if (!estimate) return;
    label.caption = Format(estimate->balance, kSumPattern);
    label.visible = true;
    if (!estimate->fits) label.foreColor = colors::kRed;
  } catch (const RuntimeError&) {
    // It overflows, so there is nothing to show.
  }
}

std::string Preview::WhatContinueWaitsFor() const {
  if (main_.Command1.enabled) return IsAllGiven(values_) ? "All is given" : "";
  if (values_.Budget == Currency()) return "Opens after a Budget and a donation";
  const Currency fee = donation_.ServiceFee();
  // So little is left already; only an entry opens it.
  if (values_.Balance <= fee) return "Opens with the next donation";
  return "Opens when " + Format(fee, kSumPattern) + " or less is left";
}

}  // namespace benevix
