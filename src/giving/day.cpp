#include "giving/day.h"

#include "core/date_text.h"

namespace benevix {
namespace {

// The number that `count` digits from `at` on are, -1 when one of them is none.
int NumberAt(std::string_view text, std::size_t at, std::size_t count) {
  int number = 0;
  for (std::size_t i = at; i < at + count; ++i) {
    if (text[i] < '0' || text[i] > '9') return -1;
    number = number * 10 + (text[i] - '0');
  }
  return number;
}

std::optional<Day> Checked(const Day& day) {
  constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (day.year < 1 || day.month < 1 || day.month > 12 || day.day < 1) return std::nullopt;
  const bool leaps = day.year % 4 == 0 && (day.year % 100 != 0 || day.year % 400 == 0);
  const int last = days[day.month - 1] + (leaps && day.month == 2 ? 1 : 0);
  return day.day <= last ? std::optional(day) : std::nullopt;
}

}  // namespace

DayRange WholeYear(int year) {
  return {{year, 1, 1}, {year, 12, 31}};
}

std::optional<Day> ReadDay(std::string_view text) {
  if (text.size() != 10 || text[2] != '-' || text[5] != '-') return std::nullopt;
  return Checked({NumberAt(text, 6, 4), NumberAt(text, 0, 2), NumberAt(text, 3, 2)});
}

std::optional<Day> ReadIsoDay(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  return Checked({NumberAt(text, 0, 4), NumberAt(text, 5, 2), NumberAt(text, 8, 2)});
}

std::string DayText(const Day& day) {
  return DateText({day.year, day.month, day.day, 0, 0, 0});
}

std::string IsoDayText(const Day& day) {
  const std::string text = DayText(day);
  return text.substr(6) + "-" + text.substr(0, 5);
}

}  // namespace benevix
