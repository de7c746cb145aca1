#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "giving/given_history.h"

namespace benevix {

// Reads a part of the history line by line.
class HistoryReader {
 public:
  // The next line, without its line feed.
  void Read(std::string_view line);

  SessionList sessions;
  GiftList gifts;
  std::string transactions;
  Names organizations, donors, deliveries;
  int unread = 0;

 private:
  bool ReadLine(std::string_view line);
  bool ReadHeadingLine(std::string_view line);
  bool ReadGift(std::string_view line);
  bool ReadTransaction(std::string_view line);
  bool ReadPayment(std::string_view line);
  // False for an amount with which a sum of the history's amounts could leave the range of a
  // currency; there are two parts at most.
  bool Count(Currency amount);

  bool isOpen_ = false;
  std::int64_t sum_ = 0;  // of all amounts, without their signs
};

}  // namespace benevix
