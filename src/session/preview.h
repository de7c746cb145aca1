#pragma once

#include "forms/frmBVX.h"
#include "session/donation_entry.h"
#include "session/session_values.h"

namespace benevix {

// Shows what comes next: the Balance that a typed donation would leave, and when Continue opens.
// All of it is derived from the session; nothing is stored.
class Preview {
 public:
  Preview(frmBVX& main, const SessionValues& values, const DonationEntry& donation)
      : main_(main), values_(values), donation_(donation) {}

  void Show();

 private:
  void ShowEstimate();
  [[nodiscard]] std::string WhatContinueWaitsFor() const;

  frmBVX& main_;
  const SessionValues& values_;
  const DonationEntry& donation_;
};

}  // namespace benevix
