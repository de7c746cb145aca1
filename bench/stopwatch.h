#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace benevix {

class Stopwatch {
 public:
  [[nodiscard]] double Milliseconds() const {
    using Span = std::chrono::duration<double, std::milli>;
    return Span(std::chrono::steady_clock::now() - begin_).count();
  }

 private:
  std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

// `values` must not be empty.
inline double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace benevix
