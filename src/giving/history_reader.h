#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <string_view>
#include <vector>

#include "giving/given_history.h"

namespace benevix {

// The indexes of names. Open addressing: the names of a million gifts are looked up one by one.
class Names {
 public:
  // `names` holds them, those that are there too.
  explicit Names(std::vector<std::string_view>& names) : names_(names) { Resize(1024); }

  std::uint32_t Of(std::string_view name) {
    std::size_t slot = std::hash<std::string_view>()(name) & (slots_.size() - 1);
    while (slots_[slot] != kFree) {
      if (names_[slots_[slot]] == name) return slots_[slot];
      slot = (slot + 1) & (slots_.size() - 1);
    }
    const auto index = static_cast<std::uint32_t>(names_.size());
    names_.push_back(name);
    slots_[slot] = index;
    if (names_.size() * 2 > slots_.size()) Resize(slots_.size() * 4);
    return index;
  }

 private:
  static constexpr std::uint32_t kFree = std::numeric_limits<std::uint32_t>::max();

  void Resize(std::size_t size) {
    while (size < names_.size() * 2) size *= 2;
    slots_.assign(size, kFree);
    for (std::uint32_t index = 0; index < names_.size(); ++index) {
      std::size_t slot = std::hash<std::string_view>()(names_[index]) & (slots_.size() - 1);
      while (slots_[slot] != kFree) slot = (slot + 1) & (slots_.size() - 1);
      slots_[slot] = index;
    }
  }

  std::vector<std::string_view>& names_;
  std::vector<std::uint32_t> slots_;
};

// Reads a part of the history, from the beginning of a line on.
class HistoryReader {
 public:
  // `bytes` is where the whole history begins.
  explicit HistoryReader(const char* bytes) : bytes_(bytes) {}
  HistoryReader(const HistoryReader&) = delete;
  HistoryReader& operator=(const HistoryReader&) = delete;
  ~HistoryReader() = default;

  void Read(const char* at, const char* end);

  std::vector<GivenSession> sessions;
  GiftList gifts;
  std::vector<std::string_view> names;
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
  [[nodiscard]] std::uint32_t PlaceOf(std::string_view text) const {
    return static_cast<std::uint32_t>(text.data() - bytes_);
  }

  const char* bytes_;
  Names index_{names};
  bool isOpen_ = false;
  std::int64_t sum_ = 0;  // of all amounts, without their signs
};

}  // namespace benevix
