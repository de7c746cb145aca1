#include "core/date_text.h"

#include <cstdio>

namespace benevix {

std::string DateText(const DateTime& time) {
  char text[32];
  std::snprintf(text, sizeof text, "%02d-%02d-%04d", time.month, time.day, time.year);
  return text;
}

std::string TimeText(const DateTime& time) {
  char text[32];
  std::snprintf(text, sizeof text, "%02d:%02d", time.hour, time.minute);
  return text;
}

}  // namespace benevix
