#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/currency.h"
#include "base/large_memory.h"
#include "giving/day.h"
#include "platform/files.h"

namespace benevix {

// One organization of a session.
struct Gift {
  Currency amount;
  std::uint32_t organization = 0;  // index of Organizations()
  std::uint32_t line = 0;          // where its line begins
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
  std::uint32_t transaction = 0, transactionSize = 0;  // where the ID stands
  bool hasPayment = false;
};

using GiftList = std::vector<Gift, LargeAllocator<Gift>>;

class HistoryReader;

// The texts of a gift, as they stand in the history.
struct GiftTexts {
  std::string_view name, amountText;
  std::string_view from, delivery;  // who the donor is said to be, and how the gift is delivered
  Currency amount;
  bool proof = false, certificate = false;

  // False for a line, without its indent, that is no gift.
  bool Read(std::string_view line);
};

// What the history says, read in one pass over its bytes, which stay in memory: texts are cut from
// them when they are asked for. A line that is no part of a record, or is damaged, is counted and
// left out; the rest stands.
class GivenHistory {
 public:
  GivenHistory() = default;
  // A file that does not exist is an empty history. Raises RuntimeError when it cannot be read.
  GivenHistory(const Files& files, const FilePath& file);
  // Some of its records.
  explicit GivenHistory(std::string_view records);
  // Its names are views of its bytes.
  GivenHistory(const GivenHistory&) = delete;
  GivenHistory& operator=(const GivenHistory&) = delete;
  GivenHistory(GivenHistory&&) = default;
  GivenHistory& operator=(GivenHistory&&) = default;
  ~GivenHistory() = default;

  // In the order of the file.
  [[nodiscard]] const std::vector<GivenSession>& Sessions() const { return sessions_; }
  [[nodiscard]] const GiftList& Gifts() const { return gifts_; }
  // Their names; one name is one organization, since the history knows no more of it.
  [[nodiscard]] const std::vector<std::string_view>& Organizations() const { return names_; }
  [[nodiscard]] int UnreadLines() const { return unread_; }

  [[nodiscard]] std::string_view Transaction(const GivenSession& session) const {
    return {bytes_.data() + session.transaction, session.transactionSize};
  }
  [[nodiscard]] GiftTexts TextsOf(const Gift& gift) const;

 private:
  // Puts what a reader has found behind what is there.
  void Add(HistoryReader&& part);

  std::vector<char, LargeAllocator<char>> bytes_;
  std::vector<GivenSession> sessions_;
  GiftList gifts_;
  std::vector<std::string_view> names_;
  int unread_ = 0;
};

// How a session was paid, by the last letter of its transaction ID; empty for another letter.
std::string PaymentMethod(std::string_view transaction);

}  // namespace benevix
