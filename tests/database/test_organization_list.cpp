#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "../platform/temp_files.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "database/organization_list.h"
#include "platform/linux/linux_files.h"

namespace benevix {
namespace {

using namespace std::string_literals;

// The rows as "Country|Organization|Type|ID", then the version and whether the list is damaged.
std::string Loaded(const std::string& bytes) {
  const TempFolder folder;
  WriteFile(folder / "list", bytes);
  const OrganizationList list(*LinuxFiles().Open(FilePath(folder / "list")));
  std::string text;
  std::vector<int> headings;
  for (int row = 1; row <= list.Count(); ++row) {
    if (list.Text(row, column::kId).empty()) headings.push_back(row);
    text += list.Text(row, column::kCountry) + "|" + list.Text(row, column::kOrganization) + "|" +
            list.Text(row, column::kType) + "|" + list.Text(row, column::kId) + "\n";
    EXPECT_EQ(list.Text(row, column::kAmount) + list.Text(row, column::kRecord), "");
  }
  EXPECT_EQ(list.Headings(), headings);
  return text + (list.Version() ? SingleToText(*list.Version()) : "-") +
         (list.Damage().empty() ? "" : " damaged");
}

// The same from a reference reader, which is simple and slow.
std::string ReadSimply(const std::string& bytes) {
  std::string rows, version = "-";
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
    std::string line = bytes.substr(at, end - at);
    at = end + 1;
    if (line.ends_with('\r')) line.pop_back();
    try {
      if (line.starts_with(";QUORL")) {
        version = SingleToText(ToSingle(Val(line.substr(6))));
      } else if (line.starts_with('[')) {
        rows += line.substr(1, std::max<std::size_t>(line.size(), 2) - 2) + "|||\n";
      } else if (!line.empty() && line[0] != ';') {
        const std::string id = std::to_string(ToInt32(std::trunc(Val(line.substr(0, 8)))));
        const bool nameless = line.find_first_not_of(' ') == std::string::npos ||
                              (line.size() < 10 && line.find(',') != std::string::npos);
        const auto comma = line.find(',', 9);
        if (comma == std::string::npos && !nameless) throw RuntimeError("no comma");
        rows += comma == std::string::npos
                    ? "|||" + id + "\n"
                    : "|" + line.substr(9, comma - 9) + "|" +
                          line.substr(std::min(comma + 2, line.size())) + "|" + id + "\n";
      }
    } catch (const RuntimeError&) {
      return rows + version + " damaged";
    }
  }
  return rows + version;
}

TEST(OrganizationList, ReadsEveryKindOfLine) {
  const std::pair<std::string, std::string> cases[] = {
      {";QUORL1.0003\r\n", "1.0003"},
      {";QUORL 1\n;QUORLX\r\n;quorl 5\r\n; note, with comma\r\n", "0"},
      {"[Kenya]\r\n[Kenya\n[]\n[\n", "Kenya|||\nKeny|||\n|||\n|||\n-"},
      {"00000042 Water For All, Relief", "|Water For All|Relief|42\n-"},
      {"00000042 Water For All,Relief\r\n", "|Water For All|elief|42\n-"},
      {"      42 A, b, c\r\n\r\n\n", "|A|b, c|42\n-"},
      {" \n          \r\n1,\n12345678 ,\n", "|||0\n|||0\n|||1\n|||12345678\n-"},
      {"[A]\n00000001 Name without end\n[B]\n", "A|||\n- damaged"},
      {"00000001,Name\n", "- damaged"},
      {"99999e99 A, b\n", "- damaged"},
      {";QUORL1\n;QUORL1e99\n[A]\n", "1 damaged"},
      {"000001\0009 A\0, b"s, "|A\0|b|1\n-"s}};
  for (const auto& [bytes, list] : cases) EXPECT_EQ(Loaded(bytes), list) << bytes;
  for (const std::string path : {"/", "./missing"}) {
    try {
      const OrganizationList list(*LinuxFiles().Open(FilePath(path)));
      ADD_FAILURE() << path;
    } catch (const RuntimeError& error) {
      EXPECT_TRUE(std::string(error.what()).find(path) != std::string::npos) << error.what();
    }
  }
}

TEST(OrganizationList, ReadsRandomBytesLikeTheReferenceReader) {
  const std::string letters = "\n\n\n\r,,;[] 0123456789eE&H.-abcQUORL\0\xE9\xFF"s;
  const std::string starts[] = {";QUORL", "[", "00000001 A, ", "0000000", "        ", ""};
  std::mt19937 random(5);
  int damaged = 0;
  for (int i = 0; i < 500; ++i) {
    std::string bytes;
    for (auto lines = random() % 6; lines > 0; --lines) {
      bytes += starts[random() % std::size(starts)];
      for (auto n = random() % 30; n > 0; --n) bytes += letters[random() % letters.size()];
      bytes += random() % 3 == 0 ? "\n" : "\r\n";
    }
    const std::string expected = ReadSimply(bytes);
    ASSERT_EQ(Loaded(bytes), expected) << bytes;
    damaged += expected.ends_with("damaged") ? 1 : 0;
  }
  EXPECT_GT(damaged, 50);
  EXPECT_LT(damaged, 450);
  // Larger than one read, with lines across the borders of reads and in several parts.
  std::string bytes = "[" + std::string(3'000'000, 'x') + "]\n";
  while (bytes.size() < 8'000'000) {
    if (random() % 99 == 0) bytes += "[Country]\n;QUORL" + std::to_string(bytes.size()) + "\n";
    bytes += "0" + std::to_string(1'000'000 + random() % 9'000'000) + " " +
             std::string(random() % 3000, 'n') + ", " + std::string(random() % 9, 't') + "\r\n";
  }
  EXPECT_TRUE(Loaded(bytes) == ReadSimply(bytes));
  for (const std::size_t place : {std::size_t{3'000'003}, bytes.size()}) {
    bytes.insert(place, "bad\n");
    EXPECT_TRUE(Loaded(bytes) == ReadSimply(bytes) && Loaded(bytes).ends_with("damaged"));
    bytes.erase(place, 4);
  }
}

}  // namespace
}  // namespace benevix
