#include <gtest/gtest.h>
#include <random>

#include "base/lines.h"
#include "giving/gifts_csv.h"
#include "platform/linux/linux_files.h"
#include "platform/temp_files.h"

namespace benevix {
namespace {

PaymentState NotKnown(std::string_view /*transaction*/) {
  return PaymentState::NotKnown;
}

// The fifth field of a line of the table; quoted fields may hold commas and doubled quotes.
std::string AmountOf(std::string_view line) {
  std::string plain;
  bool quoted = false;
  for (const char c : line) {
    if (c == '"') quoted = !quoted;
    if (!quoted && c != '"') plain += c;
  }
  std::string_view rest = plain;
  for (int i = 0; i < 4; ++i) CutField(rest, ',');
  return std::string(CutField(rest, ','));
}

// Long enough for two threads, with odd names and damaged lines.
TEST(GivenHistoryTest, HistoryReportAndTableHaveTheSameSum) {
  std::mt19937 random(1);
  const char* const names[] = {"Water, \"For\" All", "=SUM(A1)", "Caf\xE9 -  Amount: $x", "A - B"};
  std::string text;
  Currency sum;
  int damaged = 0;
  for (int session = 0; session < 4000; ++session) {
    text += "-- 03-05-2003 @ 12:34\r\n             Transaction ID: " + std::to_string(session) +
            "C - Budget: $500\r\n";
    for (int gift = 0; gift < 3; ++gift) {
      const Currency amount = Currency::FromUnits(static_cast<int>(random() % 1'000'000) * 100);
      text += "             Organization: " + std::string(names[random() % 4]) + " -  Amount: $" +
              amount.ToText() + " -  From: Ann -  Method: Pool\r\n";
      sum += amount;
    }
    if (session % 7 == 0) {
      text += "             Organization: damaged -  Amount: $5 -  Fr\r\n";
      ++damaged;
    }
    text += "             Payment: $1.00 - BVX Fee: $ . - CC Fee: $-1.\r\n\r\n";
  }
  const TempFolder folder;
  WriteFile(folder / "history.dat", text);
  const GivenHistory history(LinuxFiles(), FilePath(folder / "history.dat"));
  EXPECT_EQ(history.UnreadLines(), damaged);
  EXPECT_EQ(history.Organizations().size(), std::size(names));
  const DayRange range = WholeRange(history).value();
  const GivingFigures figures = FiguresOf(history, range, NotKnown);
  EXPECT_EQ(figures.given, sum);
  Currency ofOrganizations;
  for (const OrganizationGifts& gifts : figures.organizations) ofOrganizations += gifts.total;
  EXPECT_EQ(ofOrganizations, sum);
  const std::string csv = GiftsCsv(history, range, NotKnown);
  Currency ofTable;
  for (const std::string_view line : Lines(csv)) {
    if (line.starts_with("2003-")) ofTable += Currency::FromText(AmountOf(line));
  }
  EXPECT_EQ(ofTable, sum);
  // In one piece it says the same.
  EXPECT_EQ(GiftsCsv(GivenHistory(text), range, NotKnown), csv);
}

}  // namespace
}  // namespace benevix
