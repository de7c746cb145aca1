#pragma once

#include <functional>
#include <future>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

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

  // Reads the whole history: the program has started, or another payment is known.
  void Read();
  // These records were written to the history.
  void Add(const std::string& records);

  // Shows the card for the selected organization; an index that is not ready shows nothing.
  void Show();

 private:
  struct Sum {
    int gifts = 0;
    Currency total;
    std::map<int, Currency> years;
    Day last;
  };
  using Index = std::unordered_map<std::string, Sum>;

  static void AddTo(Index& index, const GivenHistory& history, const TransactionStates& states);
  [[nodiscard]] std::string TextOf(const std::string& organization) const;

  frmBVX& main_;
  Environment& environment_;
  const PaymentStates& states_;
  Index index_;
  std::future<Index> coming_;
  // Readings that are no longer of use: waiting for their end would hold the window.
  std::vector<std::future<Index>> dropped_;
};

}  // namespace benevix
