#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <variant>

#include "platform/clock.h"

namespace benevix {

using Microseconds = std::chrono::microseconds;
using Moment = std::chrono::local_time<Microseconds>;

// "YYYY-MM-DD HH:MM:SS.ff" as a moment, "+SECONDS" as a step; the fractions may be left out.
std::optional<std::variant<Moment, Microseconds>> MomentIn(const std::string& text);

// Stands still until it is set.
class StandingClock : public Clock {
 public:
  StandingClock() { Set("2003-03-05 12:34:56.25"); }

  // A text that MomentIn reads.
  void Set(const std::string& text);
  [[nodiscard]] DateTime Now() const override;

 private:
  Moment now_;
};

}  // namespace benevix
