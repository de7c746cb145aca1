#include <gtest/gtest.h>

#include "../program_fixture.h"
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
    fixture_.Enter();
  }
  // Prints with a menu item; returns the pages after the report's header.
  PrintedPages Print(MenuItem& item, const std::string& title, int jobs) {
    EXPECT_TRUE(fixture_.program.TheInput().ChooseMenu(item));
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
  void ExpectFooter(PrintedPages& pages) {
    pages.ExpectLine(
        1, " ------------------------- End Doc ------ 03-05-2003 @ 12:34:56 ------------- " +
               fixture_.world.info.deployment.serverBase + " ------------- ");
    pages.ExpectEnd();
  }
  void TypeAndEnter(TextBox& box, const std::string& text) {
    Input& input = fixture_.program.TheInput();
    EXPECT_TRUE(input.Type(box, text));
    EXPECT_TRUE(input.Key(box, keys::kEnter));
  }

  PrintService& service_ = PrintService::Instance();
  QtPrinter printer_;
  ProgramFixture fixture_{&printer_};
  Forms& forms_ = fixture_.program.TheForms();
};

TEST_F(ReportsTest, PrintsTheSessionAsInTheHistory) {
  fixture_.world.site.Put("53rv3r/ctact.dat", {.text = "mail?,us"});
  fixture_.world.site.Put("mail", {.text = "Thank You"});
  for (TextBox& box : forms_.Get<frmPersInfo>().Text1) box.text = "x";
  forms_.Get<frmBVX>().Combo1.text = "Ann Lee";
  Input& input = fixture_.program.TheInput();
  TypeAndEnter(forms_.Get<frmBVX>().Text1[0], "50");
  input.Choose(forms_.Get<frmPayOpt>().Option1[payment::kFundsTransfer]);
  input.Click(forms_.Get<frmPayOpt>().Command1[0]);
  input.SelectRow(forms_.Get<frmBVX>().ListView1, 2, MouseButton::Left);
  TypeAndEnter(forms_.Get<frmBVX>().Text1[2], "50");
  input.Click(forms_.Get<frmBVX>().Command1);
  PrintedPages pages = Print(forms_.Get<frmBVX>().mnuPrntSession, "Current Session", 1);
  const std::string history = ReadFile(fixture_.world.info.Resource("history.dat").Utf8());
  EXPECT_NE(history.find("Organization: Water For All -  Amount: $50.00"), std::string::npos);
  for (const std::string_view line : Lines(history)) pages.ExpectLine(1, std::string(line));
  ExpectFooter(pages);
}

TEST_F(ReportsTest, PrintsALongHistory) {
  std::string text;
  for (std::size_t i = 0; i < 200; ++i) {
    text += "-- 03-05-2003 @ 12:34\r\n             Organization: " + std::string(i, 'o') +
            " -  Amount: $1.25\r\n\r\n";
  }
  text += std::string(3000, 'x') + "\r\n\nthe last line has no end, caf\xE9";
  WriteFile(fixture_.world.info.Resource("history.dat").Utf8(), text);
  PrintedPages pages = PrintHistory(1);
  EXPECT_GE(pages.Count(), 5U);
  for (const std::string_view line : Lines(text)) pages.ExpectLine(7, std::string(line));
  pages.ExpectLine(1, "");
  ExpectFooter(pages);
}

}  // namespace
}  // namespace benevix
