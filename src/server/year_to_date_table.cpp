#include "server/year_to_date_table.h"

#include <algorithm>
#include <limits>

#include "base/lines.h"
#include "database/organization_list.h"

namespace benevix {
namespace {

constexpr int kOffsetBits = 32;
constexpr std::uint64_t kOffset = std::numeric_limits<std::uint32_t>::max();

std::uint64_t PlaceOf(std::int32_t id, std::uint64_t offset) {
  return std::uint64_t{static_cast<std::uint32_t>(id)} << kOffsetBits | offset;
}

}  // namespace

YearToDateTable::YearToDateTable(std::string_view text) {
  text = text.substr(0, kOffset);
  // Only CR LF ends a line of the file; the records in a line end in LF.
  for (std::string_view rest = text; !rest.empty() && !isDamaged_;) {
    const auto end = std::min(rest.find("\r\n"), rest.size());
    AddLine(rest.substr(0, end), text.data());
    rest.remove_prefix(std::min(end + 2, rest.size()));
  }
  if (!std::ranges::is_sorted(places_)) std::ranges::sort(places_);
}

void YearToDateTable::AddLine(std::string_view line, const char* text) {
  constexpr std::size_t shortest = 13;  // less than this is not searched
  while (line.size() >= shortest) {
    const std::string_view record = CutField(line, '\n');
    const auto comma = record.find(',');
    if (comma == std::string_view::npos) {
      isDamaged_ = true;
      return;
    }
    const auto offset = static_cast<std::uint64_t>(record.data() + comma + 1 - text);
    if (const auto id = IdIn(record.substr(0, comma))) places_.push_back(PlaceOf(*id, offset));
  }
}

std::optional<std::size_t> YearToDateTable::Find(std::int32_t id) const {
  const auto place = std::ranges::lower_bound(places_, PlaceOf(id, 0));
  if (place == places_.end() || *place > PlaceOf(id, kOffset)) return std::nullopt;
  return *place & kOffset;
}

}  // namespace benevix
