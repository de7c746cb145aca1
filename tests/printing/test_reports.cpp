#include <gtest/gtest.h>

#include "../program_of_a_test.h"
#include "base/lines.h"
#include "platform/qt/qt_printer.h"
#include "print_service.h"
#include "printed_pages.h"

namespace benevix {
namespace {

// The program with a real printer.
class ReportsTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!service_.Missing().empty()) GTEST_SKIP() << "no print service: " << service_.Missing();
    service_.SetPrinter("Letter");
    it_.Enter();
  }
  // Prints the history file as the menu does; gives what is on the paper behind its head.
  PrintedPages PrintHistory(int jobs) {
    it_.program.TheInput().ChooseMenu(it_.program.TheWindows().main.mnuPrtHistory);
    PrintedPages pages(service_.Printed(jobs));
    pages.ExpectLine(40, " -- Benevix  Copyright Quorl -- ");
    for (int i = 0; i < 2; ++i) pages.ExpectLine(1, "");
    pages.ExpectLine(50, "Benevix - Sessions History");
    for (int i = 0; i < 2; ++i) pages.ExpectLine(1, "");
    return pages;
  }

  PrintService& service_ = PrintService::Instance();
  QtPrinter printer_;
  ProgramOfATest it_{&printer_};
};

TEST_F(ReportsTest, AMissingHistoryEndsThePrintoutAndTheNextOneOfSeveralPagesStandsAlone) {
  PrintHistory(1).ExpectEnd();
  std::string text;
  for (std::size_t i = 0; i < 200; ++i) {
    text += "-- 03-05-2003 @ 12:34\r\n             Organization: " + std::string(i, 'o') +
            " -  Amount: $1.25\r\n\r\n";
  }
  text += std::string(3000, 'x') + "\r\n\nthe last line has no end, caf\xE9";
  Put(it_.world.info.Resource("history.dat"), text);
  PrintedPages pages = PrintHistory(2);
  EXPECT_GE(pages.Count(), 5U);
  for (const std::string_view line : Lines(text)) pages.ExpectLine(7, std::string(line));
  pages.ExpectLine(1, "");
  pages.ExpectLine(
      1, " ------------------------- End Doc ------ 03-05-2003 @ 12:34:56 ------------- " +
             it_.world.info.deployment.serverBase + " ------------- ");
  pages.ExpectEnd();
}

}  // namespace
}  // namespace benevix
