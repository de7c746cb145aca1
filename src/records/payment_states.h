#pragma once

#include <functional>
#include <map>
#include <string>

#include "controls/controls.h"
#include "core/messages.h"
#include "platform/environment.h"
#include "records/payment_state.h"

namespace benevix {

using TransactionStates = std::map<std::string, PaymentState, std::less<>>;

// What the file says now; what it does not name, or cannot be read, is not known.
TransactionStates ReadPaymentStates(const Environment& environment);
PaymentState StateOf(const TransactionStates& states, std::string_view transaction);

// Whether the sessions that were sent have been paid, by their transaction IDs. The history does
// not know it; this stands in a file beside it: one line "ID Paid", "ID Cancelled" or "ID
// NotKnown", of which the last one holds.
class PaymentStates {
 public:
  PaymentStates(Environment& environment, Messages& messages, const PageViewer& viewer)
      : environment_(environment), messages_(messages), viewer_(viewer) {}

  // Called when the page on which a payment ended has told how.
  std::function<void()> onNoted = [] {};

  [[nodiscard]] TransactionStates Read() const { return ReadPaymentStates(environment_); }

  // Appends a line; when that fails, the user is told, and it gives false.
  bool Set(const std::string& transaction, PaymentState state);

  // When the payment page has come back to the server, its address tells how it ended.
  void AfterEvent();

 private:
  Environment& environment_;
  Messages& messages_;
  const PageViewer& viewer_;
  std::string seenAddress_;
};

}  // namespace benevix
