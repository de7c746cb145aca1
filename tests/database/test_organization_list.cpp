#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "../platform/surroundings_of_a_test.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "database/organization_list.h"

namespace benevix {
namespace {

using namespace std::string_literals;

// A list as its rows' texts, "Country|Organization|Type|ID", then version and "damaged".
std::string Described(const std::vector<std::string>& rows, std::optional<float> version,
                      bool damaged) {
  std::string text;
  for (const std::string& row : rows) text += row + "\n";
  return text + (version ? SingleToText(*version) : "-") + (damaged ? " damaged" : "");
}

std::string Loaded(const std::string& path) {
  const OrganizationList list(path);
  std::vector<std::string> rows;
  std::vector<int> headings;
  for (int row = 1; row <= list.Count(); ++row) {
    rows.push_back(list.Text(row, column::kCountry) + "|" + list.Text(row, column::kOrganization) +
                   "|" + list.Text(row, column::kType) + "|" + list.Text(row, column::kId));
    for (const int empty : {column::kAmount, column::kPool, column::kFrom, column::kRecord,
                            column::kFee, column::kCardFee}) {
      EXPECT_EQ(list.Text(row, empty), "");
    }
    if (list.Text(row, column::kId).empty()) headings.push_back(row);
  }
  EXPECT_EQ(list.Headings(), headings);
  EXPECT_EQ(list.Text(0, 1) + list.Text(list.Count() + 1, 1), "");
  return Described(rows, list.Version(), !list.Damage().empty());
}

std::string LoadedFrom(const std::string& bytes) {
  const TempFolder folder;
  Put(folder / "sharedb.dat", bytes);
  return Loaded(folder / "sharedb.dat");
}

// The same line by line, as plainly as it can be said.
std::string ReadPlainly(const std::string& bytes) {
  std::vector<std::string> rows;
  std::optional<float> version;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
    std::string line = bytes.substr(at, end - at);
    at = end + 1;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    try {
      if (line.empty()) continue;
      if (line.substr(0, 6) == ";QUORL") {
        version = ToSingle(Val(line.substr(6)));
      } else if (line[0] == '[') {
        rows.push_back(line.size() < 2 ? "|||" : line.substr(1, line.size() - 2) + "|||");
      } else if (line[0] != ';') {
        const std::string id = std::to_string(ToInt32(std::trunc(Val(line.substr(0, 8)))));
        const std::string rest = line.size() > 9 ? line.substr(9) : "";
        const bool blank = line.find_first_not_of(' ') == std::string::npos;
        const bool shortLine = line.size() < 10 && line.find(',') != std::string::npos;
        const auto comma = rest.find(',');
        if (comma == std::string::npos && !blank && !shortLine) throw RuntimeError("no comma");
        rows.push_back(comma == std::string::npos
                           ? "|||" + id
                           : "|" + rest.substr(0, comma) + "|" +
                                 (rest.size() > comma + 2 ? rest.substr(comma + 2) : "") + "|" +
                                 id);
      }
    } catch (const RuntimeError&) {
      return Described(rows, version, true);
    }
  }
  return Described(rows, version, false);
}

TEST(OrganizationList, ReadsEveryKindOfLine) {
  const struct {
    std::string bytes, list;
  } cases[] = {
      {"", "-"},
      {";QUORL1.0003\r\n", "1.0003"},
      {";QUORL 2.0013", "2.0013"},
      {";QUORLX\r\n;quorl 5\r\n; note, with comma\r\n", "0"},
      {";QUORL1\n;QUORL2\n", "2"},
      {"[Kenya]\r\n[Kenya\n", "Kenya|||\nKeny|||\n-"},
      {"[\n[]\n", "|||\n|||\n-"},
      {"00000042 Water For All, Relief", "|Water For All|Relief|42\n-"},
      {"00000042 Water For All,Relief\r\n", "|Water For All|elief|42\n-"},
      {"      42 A, b, c\r\n\r\n\n", "|A|b, c|42\n-"},
      {" \n          \r\n", "|||0\n|||0\n-"},
      // Too short for a name, but with a comma.
      {"1,\n12,45678\n", "|||1\n|||12\n-"},
      {"12345678 ,\n", "|||12345678\n-"},
      {"00000001,Name\n[x]\n", "- damaged"},
      {"[A]\n00000001 Name without end\n[B]\n", "A|||\n- damaged"},
      {"\t\n", "- damaged"},
      {"99999e99 A, b\n", "- damaged"},
      {"&H7FFFFF A, b\n", "|A|b|8388607\n-"},
      {";QUORL1\n;QUORL1e99\n[A]\n", "1 damaged"},
      {"000001\0009 A\0, b"s, "|A\0|b|1\n-"s},
  };
  for (const auto& [bytes, list] : cases) {
    EXPECT_EQ(LoadedFrom(bytes), list) << bytes;
  }
}

TEST(OrganizationList, ReadsRandomBytesAsPlainlyAsLineByLine) {
  using std::string_literals::operator""s;
  const std::string letters = "\n\n\n\r,,;[] 0123456789eE&H.-abcQUORL\0\xE9\xFF"s;
  const std::string starts[] = {";QUORL", "[", "00000001 A, ", "0000000", "        ", ""};
  std::mt19937 random(5);
  const TempFolder folder;
  int damaged = 0;
  for (int i = 0; i < 500; ++i) {
    std::string bytes;
    for (auto lines = random() % 6; lines > 0; --lines) {
      bytes += starts[random() % std::size(starts)];
      for (auto n = random() % 30; n > 0; --n) bytes += letters[random() % letters.size()];
      bytes += random() % 3 == 0 ? "\n" : "\r\n";
    }
    std::filesystem::remove(folder / "list");  // cheaper than to overwrite it
    Put(folder / "list", bytes);
    const std::string expected = ReadPlainly(bytes);
    ASSERT_EQ(Loaded(folder / "list"), expected) << bytes;
    damaged += expected.ends_with("damaged") ? 1 : 0;
  }
  EXPECT_GT(damaged, 50);
  EXPECT_LT(damaged, 450);
}

// Longer than the pieces in which a file is read, with lines across their borders.
TEST(OrganizationList, ReadsAcrossThePiecesOfALargeFile) {
  std::mt19937 random(6);
  std::string bytes = ";QUORL3.0001\r\n";
  while (bytes.size() < 900'000) {
    bytes += random() % 50 == 0 ? "[Country " + std::to_string(random() % 300) + "]\r\n"
                                : "0" + std::to_string(1'000'000 + random() % 9'000'000) + " " +
                                      std::string(random() % 3000, 'n') + ", " +
                                      std::string(random() % 9, 't') + "\r\n";
  }
  EXPECT_TRUE(LoadedFrom(bytes) == ReadPlainly(bytes));
  const std::string oneLine = "[" + std::string(5'000'000, 'x') + "]";
  EXPECT_TRUE(LoadedFrom(oneLine) == ReadPlainly(oneLine));
}

TEST(OrganizationList, AFileThatCannotBeReadIsNamed) {
  const TempFolder folder;
  for (const std::string& path : {folder / "missing", folder / "."}) {
    try {
      const OrganizationList list(path);
      ADD_FAILURE() << path;
    } catch (const RuntimeError& error) {
      EXPECT_NE(std::string(error.what()).find(path), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace benevix
