#pragma once

namespace benevix {

// Local time without a zone.
struct DateTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0;
  double second = 0;  // with its fraction
};

class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual DateTime Now() const = 0;
};

}  // namespace benevix
