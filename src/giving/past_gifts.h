#pragma once

#include <functional>
#include <future>
#include <string>
#include <unordered_map>

#include "forms/frmBVX.h"
#include "giving/given_history.h"
#include "platform/environment.h"
#include "records/payment_states.h"

namespace benevix {

// What the donor gave before to the organization that is selected in the main window, from an index
// of the history. A long history is read in the background.
class PastGifts {
 public:
  PastGifts(frmBVX& main, Environment& environment, const PaymentStates& states)
      : main_(main), environment_(environment), states_(states) {}

  // The history or what is known of its payments has changed, or the program has started.
  void Read();

  // Shows the card for the selected organization; an index that is not ready shows nothing.
  void Show();

 private:
  struct Sum {
    int gifts = 0;
    Currency total, lastYear;  // of the year of the last gift
    Day last;
  };
  using Index = std::unordered_map<std::string, Sum>;

  static Index IndexOf(const GivenHistory& history, const PaymentStates::States& states);
  [[nodiscard]] std::string TextOf(const std::string& organization) const;

  frmBVX& main_;
  Environment& environment_;
  const PaymentStates& states_;
  Index index_;
  std::future<Index> coming_;
};

}  // namespace benevix
