#include "platform/linux/system_clock.h"

#include <ctime>

namespace benevix {

DateTime SystemClock::Now() const {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  tm local{};
  localtime_r(&now.tv_sec, &local);
  return {local.tm_year + 1900, local.tm_mon + 1,
          local.tm_mday,        local.tm_hour,
          local.tm_min,         local.tm_sec + static_cast<double>(now.tv_nsec) / 1e9};
}

}  // namespace benevix
