#pragma once

#include "platform/clock.h"

namespace benevix {

// The system's clock in the local time zone.
class SystemClock : public Clock {
 public:
  [[nodiscard]] DateTime Now() const override;
};

}  // namespace benevix
