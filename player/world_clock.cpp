#include "player/world_clock.h"

#include <algorithm>
#include <cmath>

#include "player/words.h"

namespace benevix {
namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

// Seconds with a fraction, counted from 0.
std::optional<Microseconds> SecondsIn(const std::string& text) {
  constexpr double most = 1e10;
  const bool plain = text.find_first_not_of("0123456789.") == std::string::npos;
  const auto value = plain ? DoubleIn(text) : std::nullopt;
  if (!value || *value > most) return std::nullopt;
  return Microseconds(std::llround(*value * 1e6));
}

std::optional<Moment> DateAndTimeIn(const std::string& text) {
  constexpr std::size_t secondsAt = 17;
  // Every digit as 0, to compare the shape.
  std::string shape = text.substr(0, secondsAt);
  std::replace_if(
      shape.begin(), shape.end(), [](char c) { return c >= '0' && c <= '9'; }, '0');
  if (shape != "0000-00-00 00:00:" || text.size() < secondsAt + 2) return std::nullopt;
  const auto number = [&](std::size_t at, std::size_t count) {
    return static_cast<unsigned>(WholeNumberIn(text.substr(at, count)).value_or(0));
  };
  const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(number(0, 4))),
                                         std::chrono::month(number(5, 2)),
                                         std::chrono::day(number(8, 2))};
  const auto second = SecondsIn(text.substr(secondsAt));
  const unsigned hour = number(11, 2), minute = number(14, 2);
  if (!date.ok() || hour > 23 || minute > 59 || !second || *second >= minutes(1)) {
    return std::nullopt;
  }
  return std::chrono::local_days(date) + hours(hour) + minutes(minute) + *second;
}

}  // namespace

std::optional<std::variant<Moment, Microseconds>> MomentIn(const std::string& text) {
  if (text.starts_with('+')) return SecondsIn(text.substr(1));
  return DateAndTimeIn(text);
}

void StandingClock::Set(const std::string& text) {
  const auto to = MomentIn(text).value();
  if (const auto* const step = std::get_if<Microseconds>(&to)) {
    now_ += *step;
  } else {
    now_ = std::get<Moment>(to);
  }
}

DateTime StandingClock::Now() const {
  const auto day = std::chrono::floor<days>(now_);
  const std::chrono::year_month_day date(day);
  Microseconds time = now_ - day;
  DateTime now;
  now.year = static_cast<int>(date.year());
  now.month = static_cast<int>(static_cast<unsigned>(date.month()));
  now.day = static_cast<int>(static_cast<unsigned>(date.day()));
  now.hour = static_cast<int>(time / hours(1));
  now.minute = static_cast<int>(time % hours(1) / minutes(1));
  now.second = static_cast<double>((time % minutes(1)).count()) / 1e6;
  return now;
}

}  // namespace benevix
