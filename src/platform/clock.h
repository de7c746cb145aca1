#pragma once

namespace benevix {

// A local date and time; months and days count from 1.
struct DateTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0;
  double second = 0;  // with the fraction
};

class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual DateTime Now() const = 0;
};

}  // namespace benevix
