#include "database/list_lines.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "base/runtime_error.h"

namespace benevix {
namespace {

// Bytes per read; they are scanned while still in the processor's cache.
constexpr std::size_t kReadSize = std::size_t{256} << 10;

bool IsBlank(std::string_view line) {
  return line.find_first_not_of(' ') == std::string_view::npos;
}

}  // namespace

std::optional<float> HeaderVersion(std::string_view line) {
  if (!line.starts_with(kListHeader)) return std::nullopt;
  return ToSingle(Val(line.substr(kListHeader.size())));
}

std::string_view WithoutReturn(std::string_view line) {
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

std::int32_t OrganizationId(std::string_view line) {
  return ToInt32(std::trunc(Val(line.substr(0, kIdLength))));
}

void ListLines::Load(const FileReader& file, char* bytes, std::size_t begin, std::size_t end) {
  bytes_ = bytes;
  LineScan scan(begin);
  const auto onLine = [this](std::size_t lineBegin, std::size_t lineEnd, std::size_t comma) {
    if (!IsPlainOrganization(lineBegin, comma)) return Add(lineBegin, lineEnd, comma);
    starts.push_back(static_cast<std::uint32_t>(lineBegin));
    return true;
  };
  bool intact = true;
  loaded = begin;
  while (intact && loaded < end) {
    const std::size_t count = file.Read(loaded, bytes + loaded, std::min(kReadSize, end - loaded));
    if (count == 0) break;
    loaded += count;
    intact = scan.Advance(bytes, loaded, onLine);
  }
  if (intact && scan.LineBegin() < loaded) Add(scan.LineBegin(), loaded, scan.LastComma());
}

void ListLines::Append(const ListLines& next) {
  if (!damage.empty()) return;
  const auto rows = static_cast<int>(starts.size());
  for (const int row : next.headings) headings.push_back(rows + row);
  starts.insert(starts.end(), next.starts.begin(), next.starts.end());
  if (next.version) version = next.version;
  damage = next.damage;
  loaded = next.loaded;
}

bool ListLines::Add(std::size_t begin, std::size_t end, std::size_t lastComma) {
  const std::string_view line = WithoutReturn({bytes_ + begin, end - begin});
  if (line.empty()) return true;
  if (line[0] == ';') {
    try {
      if (const auto found = HeaderVersion(line)) version = found;
    } catch (const RuntimeError& error) {
      damage = error.what();
    }
    return damage.empty();
  }
  if (line[0] == '[') {
    headings.push_back(static_cast<int>(starts.size()) + 1);
  } else {
    const bool inLine = lastComma != LineScan::kNone && lastComma >= begin;
    if (!CheckOrganization(line, inLine ? lastComma - begin : LineScan::kNone)) return false;
  }
  starts.push_back(static_cast<std::uint32_t>(begin));
  return true;
}

bool ListLines::CheckOrganization(std::string_view line, std::size_t comma) {
  const bool hasComma =
      comma != LineScan::kNone && (comma >= kNameBegin || line.size() <= kNameBegin);
  if (!hasComma && !IsBlank(line)) {
    damage = "an organization without a comma behind its name";
    return false;
  }
  try {
    OrganizationId(line);
  } catch (const RuntimeError&) {
    damage = "an organization's number is too large";
    return false;
  }
  return true;
}

}  // namespace benevix
