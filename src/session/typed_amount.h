#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace benevix {

// The number that a user has typed, or why there is none.
struct TypedAmount {
  std::optional<double> number;
  const char* note = "";  // for the box; empty for an empty text
};

// A number counts while its whole part is within 32 bits.
TypedAmount ReadAmount(const std::string& text);

inline constexpr const char* kTooLargeNote = "This is more than can be entered";
inline constexpr const char* kTooSmallNote = "At least 0.01";

// Whether a pasted text has a comma that does not divide thousands: 12,50 must not become 1250.
bool HasDecimalComma(std::string_view text);

}  // namespace benevix
