#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace benevix {

// Texts that occur again and again, each kept once and known by its index, from 0 on. Open
// addressing: the texts of a million gifts are looked up one by one.
class Names {
 public:
  [[nodiscard]] const std::vector<std::string_view>& All() const { return all_; }

  // The index of this text, which is added when it is not there.
  std::uint32_t Of(std::string_view text) {
    if (last_ < all_.size() && all_[last_] == text) return last_;
    std::size_t slot = SlotOf(text);
    while (slots_[slot] != kFree) {
      if (all_[slots_[slot]] == text) return last_ = slots_[slot];
      slot = Next(slot);
    }
    last_ = static_cast<std::uint32_t>(all_.size());
    all_.push_back(texts_.emplace_back(text));
    slots_[slot] = last_;
    if (all_.size() * 2 > slots_.size()) Grow();
    return last_;
  }

 private:
  static constexpr std::uint32_t kFree = std::numeric_limits<std::uint32_t>::max();

  [[nodiscard]] std::size_t SlotOf(std::string_view text) const {
    return std::hash<std::string_view>()(text) & (slots_.size() - 1);
  }
  [[nodiscard]] std::size_t Next(std::size_t slot) const {
    return (slot + 1) & (slots_.size() - 1);
  }

  void Grow() {
    slots_.assign(slots_.size() * 4, kFree);
    for (std::uint32_t index = 0; index < all_.size(); ++index) {
      std::size_t slot = SlotOf(all_[index]);
      while (slots_[slot] != kFree) slot = Next(slot);
      slots_[slot] = index;
    }
  }

  std::deque<std::string> texts_;  // which do not move
  std::vector<std::string_view> all_;
  std::vector<std::uint32_t> slots_ = std::vector<std::uint32_t>(16, kFree);
  std::uint32_t last_ = 0;  // often the next one, too
};

}  // namespace benevix
