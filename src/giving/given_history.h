#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/currency.h"
#include "base/large_memory.h"
#include "giving/day.h"
#include "giving/names.h"
#include "platform/files.h"

namespace benevix {

// One organization of a session.
struct Gift {
  Currency amount;
  std::uint32_t organization = 0;  // index of Organizations()
  std::uint32_t donor = 0, delivery = 0;
  bool proof = false, certificate = false;
};

// One record of the history.
struct GivenSession {
  Day day;
  int hour = 0, minute = 0;
  std::uint32_t firstGift = 0, gifts = 0;  // its gifts are Gifts()[firstGift, firstGift + gifts)
  Currency given;                          // the sum of its gifts
  // As recorded; without a payment line what was paid is what was given.
  Currency budget, paid, serviceFee, cardFee;
  std::uint32_t transaction = 0, transactionSize = 0;  // see Transaction()
  bool hasPayment = false;
};

using GiftList = std::vector<Gift, LargeAllocator<Gift>>;
using SessionList = std::vector<GivenSession, LargeAllocator<GivenSession>>;

class HistoryReader;

// What the history says, read in one pass; of its bytes nothing stays in memory. A line that is no
// part of a record, or is damaged, is counted and left out; the rest stands.
class GivenHistory {
 public:
  GivenHistory() = default;
  // A file that does not exist is an empty history. Raises RuntimeError when it cannot be read.
  GivenHistory(const Files& files, const FilePath& file);
  // Some of its records.
  explicit GivenHistory(std::string_view records);
  // Its names are views of its own texts.
  GivenHistory(const GivenHistory&) = delete;
  GivenHistory& operator=(const GivenHistory&) = delete;
  GivenHistory(GivenHistory&&) = default;
  GivenHistory& operator=(GivenHistory&&) = default;
  ~GivenHistory() = default;

  // In the order of the file.
  [[nodiscard]] const SessionList& Sessions() const { return sessions_; }
  [[nodiscard]] const GiftList& Gifts() const { return gifts_; }
  // Their names; one name is one organization, since the history knows no more of it.
  [[nodiscard]] const std::vector<std::string_view>& Organizations() const {
    return organizations_.All();
  }
  // Who the donor was said to be, and how the gift was delivered.
  [[nodiscard]] std::string_view DonorOf(const Gift& gift) const {
    return donors_.All()[gift.donor];
  }
  [[nodiscard]] std::string_view DeliveryOf(const Gift& gift) const {
    return deliveries_.All()[gift.delivery];
  }
  [[nodiscard]] int UnreadLines() const { return unread_; }

  [[nodiscard]] std::string_view Transaction(const GivenSession& session) const {
    return std::string_view(transactions_).substr(session.transaction, session.transactionSize);
  }

 private:
  // Puts what a reader has found behind what is there.
  void Add(const HistoryReader& part);

  SessionList sessions_;
  GiftList gifts_;
  std::string transactions_;  // the IDs, one behind the other
  Names organizations_, donors_, deliveries_;
  int unread_ = 0;
};

// How a session was paid, by the last letter of its transaction ID; empty for another letter.
std::string PaymentMethod(std::string_view transaction);

}  // namespace benevix
