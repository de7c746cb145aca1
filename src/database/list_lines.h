#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/large_memory.h"
#include "base/line_scan.h"
#include "platform/files.h"

namespace benevix {

// How long the ID of an organization is, and where its name begins in the line.
inline constexpr std::size_t kIdLength = 8;
inline constexpr std::size_t kNameBegin = 9;
// For reserving memory: few lines are shorter, and memory that is never touched costs nothing.
inline constexpr std::size_t kShortLine = 32;

// How a header line begins.
inline constexpr std::string_view kListHeader = ";QUORL";

// The version in a header line; nothing for any other line. Raises RuntimeError beyond a float.
std::optional<float> HeaderVersion(std::string_view line);

// Whether eight characters are all digits; such a number cannot be out of range.
inline bool IsPlainId(const char* digits) {
  std::uint64_t eight = 0;
  std::memcpy(&eight, digits, kIdLength);
  constexpr std::uint64_t ones = 0x0101010101010101;
  // Digits are 0x30 to 0x39: the high half is 3, and adding 6 to the low half does not carry.
  const std::uint64_t high = eight & (ones * 0xF0);
  const std::uint64_t carried = (eight + ones * 6) & (ones * 0xF0);
  return high == ones * 0x30 && carried == ones * 0x30;
}

// Their number. Two digits become one at a time, then two of these, then two of those; the first of
// two stands in the lower bits, as on every machine that this is built for.
inline std::int32_t PlainId(const char* digits) {
  std::uint64_t eight = 0;
  std::memcpy(&eight, digits, kIdLength);
  eight -= 0x3030303030303030;
  eight = (eight * 10 + (eight >> 8)) & 0x00FF00FF00FF00FF;
  eight = (eight * 100 + (eight >> 16)) & 0x0000FFFF0000FFFF;
  return static_cast<std::int32_t>((eight * 10000 + (eight >> 32)) & 0xFFFFFFFF);
}

// Raises RuntimeError beyond 32 bits.
std::int32_t OrganizationId(std::string_view line);

std::string_view WithoutReturn(std::string_view line);

// What the lines of a list file are, or those of a part of it: parts can be loaded side by side.
class ListLines {
 public:
  // Loads the bytes from `begin`, where a line begins, to `end`, behind a line or the file's last
  // byte, to their places in `bytes`, and finds the rows among their lines. A bad line ends them.
  // Raises RuntimeError when the file cannot be read.
  void Load(const FileReader& file, char* bytes, std::size_t begin, std::size_t end);
  // Puts the lines of the next part behind these. When these end early there is none.
  void Append(const ListLines& next);

  // Where each row's line begins.
  std::vector<std::uint32_t, LargeAllocator<std::uint32_t>> starts;
  std::vector<int> headings;     // rows
  std::optional<float> version;  // of the last header line
  std::string damage;            // of the bad line
  std::size_t loaded = 0;        // where the bytes end

 private:
  // Fast check that nearly every line passes; the others go through Add.
  [[nodiscard]] bool IsPlainOrganization(std::size_t begin, std::size_t lastComma) const {
    return lastComma != LineScan::kNone && lastComma >= begin + kNameBegin &&
           IsPlainId(bytes_ + begin);
  }
  // Both return false at a bad line.
  bool Add(std::size_t begin, std::size_t end, std::size_t lastComma);
  bool CheckOrganization(std::string_view line, std::size_t comma);

  const char* bytes_ = nullptr;
};

}  // namespace benevix
