#include "records/payment_states.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/lines.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "records/transaction.h"

namespace benevix {
namespace {

using Word = std::pair<std::string_view, PaymentState>;
constexpr std::array<Word, 3> kWords = {{{"Paid", PaymentState::Paid},
                                         {"Cancelled", PaymentState::Cancelled},
                                         {"NotKnown", PaymentState::NotKnown}}};

FilePath FileOf(const Environment& environment) {
  return environment.info.Resource("payments.dat");
}

// Whether the address is that of a page, whatever stands behind it.
bool IsPage(std::string_view address, const std::string& page) {
  if (!BeginsWith(address, page)) return false;
  address.remove_prefix(page.size());
  return address.empty() || address[0] == '?' || address[0] == '#';
}

}  // namespace

PaymentState StateOf(const TransactionStates& states, std::string_view transaction) {
  const auto found = states.find(transaction);
  return found == states.end() ? PaymentState::NotKnown : found->second;
}

TransactionStates ReadPaymentStates(const Environment& environment) {
  TransactionStates states;
  std::string bytes;
  try {
    bytes = environment.files.ReadAll(FileOf(environment));
  } catch (const RuntimeError&) {
    return states;
  }
  for (const std::string_view line : Lines(bytes)) {
    const auto blank = line.rfind(' ');
    if (blank == std::string_view::npos) continue;
    for (const auto& [word, state] : kWords) {
      if (line.substr(blank + 1) == word) states[std::string(line.substr(0, blank))] = state;
    }
  }
  return states;
}

bool PaymentStates::Set(const std::string& transaction, PaymentState state) {
  const auto* const word = std::ranges::find(kWords, state, &Word::second);
  try {
    environment_.files.Append(FileOf(environment_),
                              transaction + " " + std::string(word->first) + "\r\n");
  } catch (const RuntimeError& error) {
    messages_.Show("Whether the session " + transaction + " was paid could not be noted.\r\n" +
                       std::string(error.what()),
                   BoxIcon::Critical);
    return false;
  }
  return true;
}

void PaymentStates::AfterEvent() {
  if (viewer_.shown == seenAddress_) return;
  seenAddress_ = viewer_.shown;
  const std::string transaction = TransactionPaidOn(viewer_.page.web);
  if (transaction.empty()) return;
  const std::string& server = environment_.info.deployment.serverBase;
  const bool isPaid = IsPage(seenAddress_, server + kThankPage);
  if (!isPaid && !IsPage(seenAddress_, server + kCancelPage)) return;
  if (Set(transaction, isPaid ? PaymentState::Paid : PaymentState::Cancelled)) onNoted();
}

}  // namespace benevix
