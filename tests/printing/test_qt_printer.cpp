#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "platform/qt/qt_printer.h"
#include "print_service.h"
#include "printed_pages.h"

namespace benevix {
namespace {

// The printable area of the PDF printer begins a quarter of an inch from the paper's side.
constexpr double kQuarterInch = 18;

class QtPrinterTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!service.Missing().empty()) GTEST_SKIP() << "no print service: " << service.Missing();
    service.SetPrinter("A4");
  }

  PrintService& service = PrintService::Instance();
  QtPrinter printer;
};

TEST_F(QtPrinterTest, LinesStandAtTheirTabColumns) {
  const std::vector<int> columns = {1, 2, 7, 40, 50, 77, 96};
  for (const int column : columns) printer.PrintLine(column, "Tab");
  printer.PrintLine(0, "no column");
  printer.PrintLine(1, std::string(90, 'm'));
  printer.EndDoc();
  PrintedPages pages(service.Printed());
  pages.ExpectNothingCut();
  ASSERT_EQ(pages.Columns(), 96);
  for (const int column : columns) pages.ExpectLine(column, "Tab");
  pages.ExpectLine(1, "no column");
  pages.ExpectLine(1, std::string(90, 'm'));
  pages.ExpectEnd();
  EXPECT_GT(pages.Words().front().left, kQuarterInch);
}

TEST_F(QtPrinterTest, LongLinesWrapUnderTheirTabColumn) {
  std::string words;
  for (int i = 0; i < 400; ++i)
    words += "word" + std::to_string(i * i) + (i % 7 == 0 ? "   " : " ");
  const std::string endless(10'000, 'W');
  const std::string indented = std::string(13, ' ') + endless.substr(0, 300) + " end";
  const std::vector<std::pair<int, std::string>> lines = {{1, "At the left margin"},
                                                          {7, words},
                                                          {40, words},
                                                          {1, endless},
                                                          {50, endless},
                                                          {7, indented},
                                                          {1, std::string(96, 'm')},
                                                          {1, std::string(97, 'm')},
                                                          {90, "narrow as it can be here"}};
  for (const auto& [column, line] : lines) printer.PrintLine(column, line);
  printer.EndDoc();
  PrintedPages pages(service.Printed());
  pages.ExpectNothingCut();
  for (const auto& [column, line] : lines) pages.ExpectLine(column, line);
  pages.ExpectEnd();
}

TEST_F(QtPrinterTest, PagesBreakBetweenLines) {
  const auto line = [](int i) { return i % 10 == 9 ? "" : "Line " + std::to_string(i); };
  for (int i = 0; i < 301; ++i) printer.PrintLine(i % 3 + 1, line(i));
  printer.EndDoc();
  PrintedPages pages(service.Printed());
  pages.ExpectNothingCut();
  EXPECT_EQ(pages.Count(), (301 + pages.RowCount(0) - 1) / pages.RowCount(0));
  for (int i = 0; i < 301; ++i) pages.ExpectLine(i % 3 + 1, line(i));
  pages.ExpectEnd();
}

TEST_F(QtPrinterTest, EveryCharacterOfTheCodePageFillsItsColumn) {
  // Some a font could join, stretch, leave out or take for something else than text.
  printer.PrintLine(1,
                    "fi ffl -> == |a\tb|c\xAD"
                    "d|e\x81"
                    "f|g\x01"
                    "h|<i>&amp;|");
  printer.PrintLine(7,
                    "Caf\xE9 \x80 5, \x93quoted\x94 \x96 na\xEFve \x8A\x8E\x9F \xA7\xB5\xBD\xDE|");
  std::string all;
  for (int c = 0x21; c < 0x7F; ++c) all += static_cast<char>(c);
  for (int c = 0xA1; c < 0x100; ++c) all += static_cast<char>(c == 0xAD ? '-' : c);
  printer.PrintLine(1, all);
  printer.EndDoc();
  PrintedPages pages(service.Printed());
  pages.ExpectNothingCut();
  pages.ExpectLine(1, "fi ffl -> == |a b|c-d|e f|g h|<i>&amp;|");
  pages.ExpectLine(7,
                   "Caf\xE9 \x80 5, \x93quoted\x94 \x96 na\xEFve \x8A\x8E\x9F \xA7\xB5\xBD\xDE|");
  pages.ExpectLine(1, all);
  pages.ExpectEnd();
}

TEST_F(QtPrinterTest, OtherPapersOtherWidths) {
  service.SetPrinter("A6");
  printer.PrintLine(1, std::string(100, 'm'));
  printer.PrintLine(40, "beyond this page's edge");
  printer.EndDoc();
  PrintedPages pages(service.Printed());
  pages.ExpectNothingCut();
  const int columns = pages.Columns();
  EXPECT_LT(columns, 50);
  pages.ExpectLine(1, std::string(100, 'm'));
  pages.ExpectLine(39 % columns + 1, "beyond this page's edge");
  pages.ExpectEnd();
}

TEST_F(QtPrinterTest, DocumentsAreApart) {
  printer.EndDoc();  // none was begun
  printer.PrintLine(1, "The first");
  printer.EndDoc();
  printer.EndDoc();
  PrintedPages(service.Printed()).ExpectLine(1, "The first");
  printer.PrintLine(1, "The second");
  printer.EndDoc();
  PrintedPages second(service.Printed(2));
  second.ExpectLine(1, "The second");
  second.ExpectEnd();
}

TEST_F(QtPrinterTest, WithoutAPrinterItIsAnError) {
  service.RemovePrinters();
  EXPECT_THROW(printer.PrintLine(1, "Nowhere"), RuntimeError);
  printer.EndDoc();
  service.SetPrinter("A4");
  printer.PrintLine(1, "Here");
  printer.EndDoc();
  PrintedPages pages(service.Printed());
  pages.ExpectLine(1, "Here");
  pages.ExpectEnd();
}

}  // namespace
}  // namespace benevix
