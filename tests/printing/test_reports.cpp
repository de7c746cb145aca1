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
  // Prints by a menu item; gives what is on the paper behind its head.
  PrintedPages Print(MenuItem& item, const std::string& title, int jobs) {
    EXPECT_TRUE(it_.program.TheInput().ChooseMenu(item));
    PrintedPages pages(service_.Printed(jobs));
    pages.ExpectLine(40, " -- Benevix  Copyright Quorl -- ");
    for (int i = 0; i < 2; ++i) pages.ExpectLine(1, "");
    pages.ExpectLine(50, "Benevix - " + title);
    for (int i = 0; i < 2; ++i) pages.ExpectLine(1, "");
    return pages;
  }
  PrintedPages PrintHistory(int jobs) {
    return Print(forms_.Get<frmBVX>().mnuPrtHistory, "Sessions History", jobs);
  }
  void ExpectTail(PrintedPages& pages) {
    pages.ExpectLine(
        1, " ------------------------- End Doc ------ 03-05-2003 @ 12:34:56 ------------- " +
               it_.world.info.deployment.serverBase + " ------------- ");
    pages.ExpectEnd();
  }
  void TypeAndEnter(TextBox& box, const std::string& text) {
    Input& input = it_.program.TheInput();
    EXPECT_TRUE(input.Type(box, text));
    EXPECT_TRUE(input.Key(box, keys::kEnter));
  }

  PrintService& service_ = PrintService::Instance();
  QtPrinter printer_;
  ProgramOfATest it_{&printer_};
  Forms& forms_ = it_.program.TheForms();
};

TEST_F(ReportsTest, ASessionIsPrintedAsTheHistoryTellsIt) {
  it_.world.site.Put("53rv3r/ctact.dat", {.text = "mail?,us"});
  it_.world.site.Put("mail", {.text = "Thank You"});
  for (TextBox& box : forms_.Get<frmPersInfo>().Text1) box.text = "x";
  forms_.Get<frmBVX>().Combo1.text = "Ann Lee";
  Input& input = it_.program.TheInput();
  TypeAndEnter(forms_.Get<frmBVX>().Text1[0], "50");
  input.Choose(forms_.Get<frmPayOpt>().Option1[payment::kFundsTransfer]);
  input.Click(forms_.Get<frmPayOpt>().Command1[0]);
  input.SelectRow(forms_.Get<frmBVX>().ListView1, 2, MouseButton::Left);
  TypeAndEnter(forms_.Get<frmBVX>().Text1[2], "50");
  input.Click(forms_.Get<frmBVX>().Command1);
  PrintedPages pages = Print(forms_.Get<frmBVX>().mnuPrntSession, "Current Session", 1);
  const std::string told = Got(it_.world.info.Resource("history.dat"));
  EXPECT_NE(told.find("Organization: Water For All -  Amount: $50.00"), std::string::npos);
  for (const std::string_view line : Lines(told)) pages.ExpectLine(1, std::string(line));
  ExpectTail(pages);
}

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
  ExpectTail(pages);
}

}  // namespace
}  // namespace benevix
