#include "database/organization_list.h"

#include <algorithm>
#include <bitset>
#include <charconv>
#include <cstring>

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "base/word_search.h"

namespace benevix {
namespace {

struct OrganizationTexts {
  std::string_view name, type;
};

OrganizationTexts TextsOf(std::string_view line) {
  const std::string_view rest = line.size() > kNameBegin ? line.substr(kNameBegin) : "";
  const auto comma = rest.find(',');
  if (comma == std::string_view::npos) return {};
  return {rest.substr(0, comma), comma + 2 < rest.size() ? rest.substr(comma + 2) : ""};
}

}  // namespace

std::optional<std::int32_t> IdIn(std::string_view text) {
  std::int32_t id = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, id);
  // No zeros stand in front, and no minus before 0.
  const bool isPadded = text.starts_with("-0") || (text.starts_with('0') && text.size() > 1);
  if (read.ec != std::errc() || read.ptr != end || isPadded) return std::nullopt;
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

OrganizationList::OrganizationList(ListLoad& load) {
  load.Finish(bytes_, lines_);
}

OrganizationList::OrganizationList(const FileReader& file) {
  ListLoad(file).Finish(bytes_, lines_);
}

std::string_view OrganizationList::Line(int row) const {
  return LineAt(lines_.starts[static_cast<std::size_t>(row - 1)]);
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
  if (!lines_.damage.empty()) return lines_.damage;
  if (lines_.version && !IsListVersion(*lines_.version))
    return "version " + SingleToText(*lines_.version);
  return lines_.version || Count() > 0 ? "" : "empty";
}

std::string OrganizationList::Text(int row, int column) const {
  if (row < 1 || row > Count()) return {};
  if (column != column::kId) return std::string(View(row, column));
  const std::optional<std::int32_t> id = Id(row);
  return id ? std::to_string(*id) : std::string();
}

std::optional<std::int32_t> OrganizationList::Id(int row) const {
  const char* const line = bytes_.data() + lines_.starts[static_cast<std::size_t>(row - 1)];
  if (*line == '[') return std::nullopt;
  const auto length = static_cast<std::size_t>(bytes_.data() + bytes_.size() - line);
  return length >= kIdLength && IsPlainId(line) ? PlainId(line) : OrganizationId(Line(row));
}

std::map<std::int32_t, int> OrganizationList::FindIds(const std::set<std::int32_t>& ids) const {
  // By the last bits of its ID nearly every row is known not to be wanted.
  constexpr std::size_t bits = std::size_t{1} << 16;
  std::bitset<bits> mayBeWanted;
  const auto bit = [](std::int32_t id) { return static_cast<std::uint32_t>(id) % bits; };
  for (const std::int32_t id : ids) mayBeWanted.set(bit(id));
  std::map<std::int32_t, int> rows;
  for (int row = 1; row <= Count() && rows.size() < ids.size(); ++row) {
    const auto id = Id(row);
    if (id && mayBeWanted[bit(*id)] && ids.contains(*id)) rows.try_emplace(*id, row);
  }
  return rows;
}

const char* OrganizationList::PlaceInTexts(int row, const char* place, std::size_t size) const {
  const char* const name =
      bytes_.data() + lines_.starts[static_cast<std::size_t>(row - 1)] + kNameBegin;
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
    return bytes + lines_.starts[static_cast<std::size_t>(row - 1)];
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
    const std::size_t at = lines_.starts[static_cast<std::size_t>(row - 1)] + kNameBegin;
    if (at >= bytes_.size() || !SameLetter(bytes_[at], word[0])) continue;
    if (BeginsWith(View(row, column::kOrganization), word)) return row;
  }
  return 0;
}

int OrganizationList::RowOf(std::size_t begin) const {
  const auto found = std::ranges::lower_bound(lines_.starts, begin);
  const bool isRow = found != lines_.starts.end() && *found == begin;
  return isRow ? static_cast<int>(found - lines_.starts.begin()) + 1 : 0;
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
