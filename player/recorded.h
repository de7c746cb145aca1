#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace benevix {

// What happened, in its order; checked one by one from the oldest on.
template <class T>
class Recorded {
 public:
  void Add(T happened) { all_.push_back(std::move(happened)); }

  // The oldest one not checked yet; it is checked now.
  std::optional<T> Next() {
    if (checked_ == all_.size()) return std::nullopt;
    return all_[checked_++];
  }
  void SkipAll() { checked_ = all_.size(); }
  [[nodiscard]] const std::vector<T>& All() const { return all_; }

 private:
  std::vector<T> all_;
  std::size_t checked_ = 0;
};

}  // namespace benevix
