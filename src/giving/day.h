#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace benevix {

// A day of the calendar.
struct Day {
  int year = 0, month = 0, day = 0;  // months and days count from 1
  friend auto operator<=>(const Day&, const Day&) = default;
};

// Both days belong to it.
struct DayRange {
  Day from, to;
  [[nodiscard]] bool Has(const Day& day) const { return from <= day && day <= to; }
  friend bool operator==(const DayRange&, const DayRange&) = default;
};

DayRange WholeYear(int year);

// "MM-DD-YYYY", as the program writes it; nothing for any other text.
std::optional<Day> ReadDay(std::string_view text);
// "YYYY-MM-DD", as machines write it.
std::optional<Day> ReadIsoDay(std::string_view text);

std::string DayText(const Day& day);
std::string IsoDayText(const Day& day);

}  // namespace benevix
