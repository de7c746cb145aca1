#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/large_memory.h"
#include "controls/list_view.h"
#include "platform/files.h"

namespace benevix {

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

// The rows of a list file: its bytes and where each heading and organization line begins. Lines:
// ";QUORL" and a version (header), ";" (comment), "[Country]" (heading), otherwise ID in positions
// 1 to 8, Name from 10 to the comma, Type from two characters behind it.
class OrganizationList : public RowSource {
 public:
  // Reads the file. Raises RuntimeError when it cannot be read. A bad line ends the list before it,
  // and of a file of 4 GiB or more nothing is read; Damage() then says why.
  explicit OrganizationList(FileReader& file);

  [[nodiscard]] int Count() const override { return static_cast<int>(begins_.size()); }
  [[nodiscard]] std::string Text(int row, int column) const override;

  // As Text, without a copy; for the columns that stand in the file as they are shown.
  [[nodiscard]] std::string_view View(int row, int column) const;
  // An organization's number; 0 on a heading.
  [[nodiscard]] std::int32_t Id(int row) const;

  // The first row from `from` on, and then from the list's beginning, of an organization whose name
  // begins with the word, whatever the case; 0 when there is none.
  [[nodiscard]] int FindName(std::string_view word, int from) const;

  // The rows of the country headings, in order.
  [[nodiscard]] const std::vector<int>& Headings() const { return headings_; }
  // The version of the last header line.
  [[nodiscard]] const std::optional<float>& Version() const { return version_; }
  // Why the load ended early, or empty.
  [[nodiscard]] const std::string& Damage() const { return damage_; }

 private:
  // Nearly every line is one; the others are looked at closely.
  [[nodiscard]] bool IsPlainOrganization(std::size_t begin, std::size_t lastComma) const;
  bool AddLine(std::size_t begin, std::size_t end, std::size_t lastComma);
  bool TakeOrganization(std::string_view line, std::size_t comma);
  [[nodiscard]] std::string_view Line(int row) const;
  [[nodiscard]] int FindNameIn(std::string_view word, int from, int to) const;

  std::vector<char, LargeAllocator<char>> bytes_;
  std::vector<std::uint32_t, LargeAllocator<std::uint32_t>> begins_;
  std::vector<int> headings_;
  std::optional<float> version_;
  std::string damage_;
};

// What a header line begins with.
inline constexpr std::string_view kListHeader = ";QUORL";

// The version that a header line carries; nothing when it is none. Raises RuntimeError when the
// number is beyond a single.
std::optional<float> HeaderVersion(std::string_view line);

}  // namespace benevix
