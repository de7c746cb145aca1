#include "database/organization_list.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

#include "base/line_scan.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "base/word_search.h"

namespace benevix {
namespace {

constexpr std::size_t kIdLength = 8;
constexpr std::size_t kNameBegin = 9;
// Bytes per read; they are scanned while still in the processor's cache.
constexpr std::size_t kReadSize = std::size_t{256} << 10;
// For reserving memory: few lines are shorter, and memory that is never touched costs nothing.
constexpr std::size_t kShortLine = 32;

std::string_view WithoutReturn(std::string_view line) {
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

// Whether eight characters are all digits; such a number cannot be out of range.
bool IsPlainId(const char* digits) {
  std::uint64_t eight = 0;
  std::memcpy(&eight, digits, kIdLength);
  constexpr std::uint64_t ones = 0x0101010101010101;
  // Digits are 0x30 to 0x39: the high half is 3, and adding 6 to the low half does not carry.
  const std::uint64_t high = eight & (ones * 0xF0);
  const std::uint64_t carried = (eight + ones * 6) & (ones * 0xF0);
  return high == ones * 0x30 && carried == ones * 0x30;
}

std::int32_t OrganizationId(std::string_view line) {
  return ToInt32(std::trunc(Val(line.substr(0, kIdLength))));
}

struct OrganizationTexts {
  std::string_view name, type;
};

OrganizationTexts TextsOf(std::string_view line) {
  const std::string_view rest = line.size() > kNameBegin ? line.substr(kNameBegin) : "";
  const auto comma = rest.find(',');
  if (comma == std::string_view::npos) return {};
  return {rest.substr(0, comma), comma + 2 < rest.size() ? rest.substr(comma + 2) : ""};
}

bool IsBlank(std::string_view line) {
  return line.find_first_not_of(' ') == std::string_view::npos;
}

}  // namespace

std::optional<float> HeaderVersion(std::string_view line) {
  if (!line.starts_with(kListHeader)) return std::nullopt;
  return ToSingle(Val(line.substr(kListHeader.size())));
}

std::optional<std::int32_t> IdIn(std::string_view text) {
  std::int32_t id = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), id);
  if (read.ec != std::errc() || std::to_string(id) != text) return std::nullopt;
  return id;
}

bool IsListVersion(float version) {
  // Versions count from 1; even one that counts by years stays below.
  constexpr float least = 0, limit = 10'000;
  return version >= least && version < limit;
}

std::string ListFault(const Files& files, const FilePath& file) {
  try {
    return OrganizationList(*files.Open(file)).Fault();
  } catch (const RuntimeError& error) {
    return error.what();
  }
}

OrganizationList::OrganizationList(FileReader& file) {
  const std::size_t size = file.State().size;
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    damage_ = "too large";
    return;
  }
  bytes_.resize(size);
  lineStarts_.reserve(size / kShortLine);
  LineScan scan;
  const auto onLine = [this](std::size_t begin, std::size_t end, std::size_t comma) {
    if (!IsPlainOrganization(begin, comma)) return AddLine(begin, end, comma);
    lineStarts_.push_back(static_cast<std::uint32_t>(begin));
    return true;
  };
  bool intact = true;
  std::size_t loaded = 0;
  while (intact && loaded < size) {
    const std::size_t count =
        file.Read(loaded, bytes_.data() + loaded, std::min(kReadSize, size - loaded));
    if (count == 0) break;
    loaded += count;
    intact = scan.Advance(bytes_.data(), loaded, onLine);
  }
  bytes_.resize(loaded);
  if (intact && scan.LineBegin() < loaded) AddLine(scan.LineBegin(), loaded, scan.LastComma());
}

bool OrganizationList::IsPlainOrganization(std::size_t begin, std::size_t lastComma) const {
  return lastComma != LineScan::kNone && lastComma >= begin + kNameBegin &&
         IsPlainId(bytes_.data() + begin);
}

bool OrganizationList::AddLine(std::size_t begin, std::size_t end, std::size_t lastComma) {
  const std::string_view line = WithoutReturn({bytes_.data() + begin, end - begin});
  if (line.empty()) return true;
  if (line[0] == ';') {
    try {
      if (const auto version = HeaderVersion(line)) version_ = version;
    } catch (const RuntimeError& error) {
      damage_ = error.what();
    }
    return damage_.empty();
  }
  if (line[0] == '[') {
    headings_.push_back(static_cast<int>(lineStarts_.size()) + 1);
  } else {
    const bool inLine = lastComma != LineScan::kNone && lastComma >= begin;
    if (!CheckOrganization(line, inLine ? lastComma - begin : LineScan::kNone)) return false;
  }
  lineStarts_.push_back(static_cast<std::uint32_t>(begin));
  return true;
}

bool OrganizationList::CheckOrganization(std::string_view line, std::size_t comma) {
  const bool hasComma =
      comma != LineScan::kNone && (comma >= kNameBegin || line.size() <= kNameBegin);
  if (!hasComma && !IsBlank(line)) {
    damage_ = "an organization without a comma behind its name";
    return false;
  }
  try {
    OrganizationId(line);
  } catch (const RuntimeError&) {
    damage_ = "an organization's number is too large";
    return false;
  }
  return true;
}

std::string_view OrganizationList::Line(int row) const {
  return LineAt(lineStarts_[static_cast<std::size_t>(row - 1)]);
}

std::string_view OrganizationList::LineAt(std::size_t begin) const {
  const char* const text = bytes_.data() + begin;
  const void* const end = std::memchr(text, '\n', bytes_.size() - begin);
  const std::size_t length = end == nullptr
                                 ? bytes_.size() - begin
                                 : static_cast<std::size_t>(static_cast<const char*>(end) - text);
  return WithoutReturn({text, length});
}

std::string OrganizationList::Fault() const {
  if (!damage_.empty()) return damage_;
  if (version_ && !IsListVersion(*version_)) return "version " + SingleToText(*version_);
  return version_ || Count() > 0 ? "" : "empty";
}

std::string OrganizationList::Text(int row, int column) const {
  if (row < 1 || row > Count()) return {};
  if (column != column::kId) return std::string(View(row, column));
  const std::optional<std::int32_t> id = Id(row);
  return id ? std::to_string(*id) : std::string();
}

std::optional<std::int32_t> OrganizationList::Id(int row) const {
  const std::string_view line = Line(row);
  if (line[0] == '[') return std::nullopt;
  return OrganizationId(line);
}

const char* OrganizationList::PlaceInTexts(int row, const char* place, std::size_t size) const {
  const char* const name =
      bytes_.data() + lineStarts_[static_cast<std::size_t>(row - 1)] + kNameBegin;
  if (place < name) return name;
  const auto find = [&](char wanted, const char* end) {
    return static_cast<const char*>(
        std::memchr(name, wanted, static_cast<std::size_t>(end - name)));
  };
  // A comment between two rows belongs to neither.
  if (find('\n', place) != nullptr) return place + 1;
  const char* const comma = find(',', place + size);
  if (comma == nullptr) return place;
  return place <= comma ? place + 1 : std::max(place, comma + 2);
}

int OrganizationList::FindWord(const WordSearch& word, int from, int to) const {
  const char* const bytes = bytes_.data();
  const char* const end = bytes + bytes_.size();
  const auto begin = [&](int row) {
    return bytes + lineStarts_[static_cast<std::size_t>(row - 1)];
  };
  const char* const limit = to < Count() ? begin(to + 1) : end;
  const char* at = from <= to ? begin(from) : limit;
  // All rows are searched as one text; where the texts of a row lie matters only under a hit.
  for (int row = from; at < limit;) {
    const char* const found = word.Find(at, limit, end);
    if (found == nullptr) return 0;
    while (row < to && begin(row + 1) <= found) ++row;
    const char* const place = PlaceInTexts(row, found, word.Size());
    if (place == found) return row;
    at = place;
  }
  return 0;
}

int OrganizationList::FindName(std::string_view word, int from) const {
  if (word.empty()) return 0;
  const int row = FindNameIn(word, from, Count());
  return row != 0 ? row : FindNameIn(word, 1, from - 1);
}

int OrganizationList::FindNameIn(std::string_view word, int from, int to) const {
  for (int row = from; row <= to; ++row) {
    // Comparing the first letter skips most rows without cutting out the name.
    const std::size_t at = lineStarts_[static_cast<std::size_t>(row - 1)] + kNameBegin;
    if (at >= bytes_.size() || !SameLetter(bytes_[at], word[0])) continue;
    if (BeginsWith(View(row, column::kOrganization), word)) return row;
  }
  return 0;
}

int OrganizationList::RowOf(std::size_t begin) const {
  const auto found = std::ranges::lower_bound(lineStarts_, begin);
  const bool isRow = found != lineStarts_.end() && *found == begin;
  return isRow ? static_cast<int>(found - lineStarts_.begin()) + 1 : 0;
}

OrganizationList::Found OrganizationList::FindText(std::string_view word, int partFrom) const {
  const WordSearch search(word);
  const std::string_view text(bytes_.data(), bytes_.size());
  Found found;
  std::size_t begin = 0;
  std::size_t end = 0;  // of the line last looked at
  OrganizationTexts texts;
  const char* const last = text.data() + text.size();
  const auto next = [&](std::size_t from) {
    const char* const place = search.Find(text.data() + from, last, last);
    return place == nullptr ? text.size() : static_cast<std::size_t>(place - text.data());
  };
  for (std::size_t at = next(0); at < text.size(); at = next(at + 1)) {
    if (at >= end) {
      begin = at == 0 ? 0 : text.rfind('\n', at - 1) + 1;  // npos + 1 is 0
      end = std::min(text.find('\n', at), text.size() - 1) + 1;
      texts = text[begin] == '[' ? OrganizationTexts() : TextsOf(LineAt(begin));
    }
    const char* const place = text.data() + at;
    const auto room = [&](std::string_view in) {
      return place >= in.data() && place + word.size() <= in.data() + in.size();
    };
    const bool inName = room(texts.name);
    if ((inName && place == texts.name.data()) ||
        (room(texts.type) && place == texts.type.data())) {
      found.beginning = RowOf(begin);
      if (found.beginning != 0) return found;
    }
    if (inName && found.part == 0) {
      const int row = RowOf(begin);
      if (row >= partFrom) found.part = row;
    }
  }
  return found;
}

std::string_view OrganizationList::View(int row, int column) const {
  const std::string_view line = Line(row);
  if (line[0] == '[') {
    if (column != column::kCountry || line.size() < 2) return {};
    return line.substr(1, line.size() - 2);
  }
  if (column != column::kOrganization && column != column::kType) return {};
  const OrganizationTexts texts = TextsOf(line);
  return column == column::kOrganization ? texts.name : texts.type;
}

}  // namespace benevix
