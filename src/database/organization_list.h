#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/word_search.h"
#include "controls/list_view.h"
#include "database/list_lines.h"
#include "database/list_load.h"
#include "platform/files.h"

namespace benevix {

// The installed list's file in the Resources folder.
inline constexpr auto kListFile = "sharedb.dat";

// Columns of the organization list.
namespace column {
inline constexpr int kCountry = 0;
inline constexpr int kOrganization = 1;
inline constexpr int kType = 2;
inline constexpr int kAmount = 3;
inline constexpr int kPool = 4;
inline constexpr int kFrom = 5;
inline constexpr int kId = 6;
inline constexpr int kRecord = 7;  // the options record
inline constexpr int kFee = 8;
inline constexpr int kCardFee = 9;
}  // namespace column

// The rows of a list file, kept as its bytes and the start of each row's line. A line is ";QUORL"
// and a version (header), ";" and a comment, "[Country]" (heading), or ID in columns 1 to 8, name
// from column 10 to the comma, type from two characters after it (organization).
class OrganizationList : public RowSource {
 public:
  // Reads the file; raises RuntimeError when that fails. A bad line ends the list before it, and a
  // file of 4 GiB or more is not read at all; Damage() then says why.
  explicit OrganizationList(const FileReader& file);
  // The same with a load that has begun already.
  explicit OrganizationList(ListLoad& load);

  [[nodiscard]] int Count() const override { return static_cast<int>(lines_.starts.size()); }
  [[nodiscard]] std::string Text(int row, int column) const override;

  // As Text, without a copy, for a row in range; empty for ID and the written columns.
  [[nodiscard]] std::string_view View(int row, int column) const;
  // The ID of an organization, nothing for a heading; the row must be in range.
  [[nodiscard]] std::optional<std::int32_t> Id(int row) const;

  // The first row of each of these IDs that the list has.
  [[nodiscard]] std::map<std::int32_t, int> FindIds(const std::set<std::int32_t>& ids) const;

  // The first of the organizations from row `from` to `to`, with no heading between them, whose
  // name or type contains the word; 0 without one.
  [[nodiscard]] int FindWord(const WordSearch& word, int from, int to) const;

  // The first organization row from `from` on, then from row 1, whose name begins with the word,
  // ignoring case; 0 without one.
  [[nodiscard]] int FindName(std::string_view word, int from) const;

  // Where a word is found, ignoring case; 0 for nowhere.
  struct Found {
    int beginning = 0;  // the first row whose name or type begins with it
    int part = 0;       // without one, the first from a given row on whose name contains it
  };
  // In one pass over the bytes. The word must not be empty.
  [[nodiscard]] Found FindText(std::string_view word, int partFrom) const;

  // The rows of the country headings, in order.
  [[nodiscard]] const std::vector<int>& Headings() const { return lines_.headings; }
  // The version of the last header line.
  [[nodiscard]] const std::optional<float>& Version() const { return lines_.version; }
  // Why the load ended early, or empty.
  [[nodiscard]] const std::string& Damage() const { return lines_.damage; }
  // Why another list is better than this one: its damage, an absurd version, which no update would
  // ever exceed, or nothing in it; or empty.
  [[nodiscard]] std::string Fault() const;

 private:
  [[nodiscard]] std::string_view Line(int row) const;
  // `place`, behind the beginning of the row's line, when `size` bytes from there on belong to its
  // name or its type; otherwise a place behind it up to which none does.
  [[nodiscard]] const char* PlaceInTexts(int row, const char* place, std::size_t size) const;
  [[nodiscard]] std::string_view LineAt(std::size_t begin) const;
  // The row whose line begins there; 0 for other lines, such as comments.
  [[nodiscard]] int RowOf(std::size_t begin) const;
  [[nodiscard]] int FindNameIn(std::string_view word, int from, int to) const;

  ListBytes bytes_;
  ListLines lines_;
};

// The ID that the list shows as this text; nothing for another text.
std::optional<std::int32_t> IdIn(std::string_view text);

// Whether a list can have this version.
bool IsListVersion(float version);

// The Fault of a list file, also when it cannot be read; never raises.
std::string ListFault(const Files& files, const FilePath& file);

}  // namespace benevix
