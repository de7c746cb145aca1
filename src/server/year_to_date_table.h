#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "base/large_memory.h"

namespace benevix {

// Where the amounts of each organization stand in a year-to-date table: eight bytes for a record,
// so that no row needs a search through the file.
class YearToDateTable {
 public:
  YearToDateTable() = default;
  // The text of the table's file, of which 4 GiB are read.
  explicit YearToDateTable(std::string_view text);

  // The offset behind "ID," in the first record of the organization; nothing without one.
  [[nodiscard]] std::optional<std::size_t> Find(std::int32_t id) const;
  // A record without "," ended the table.
  [[nodiscard]] bool IsDamaged() const { return isDamaged_; }

 private:
  void AddLine(std::string_view line, const char* text);

  // The ID above, the offset below, in order; the records of one ID are in the order of the file.
  std::vector<std::uint64_t, LargeAllocator<std::uint64_t>> places_;
  bool isDamaged_ = false;
};

}  // namespace benevix
