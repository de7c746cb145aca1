#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "platform/qt/qt_printer.h"
#include "print_service.h"
#include "printed_pages.h"

namespace benevix {
namespace {

// Tab columns and texts.
using PrintedLines = std::vector<std::pair<int, std::string>>;

PrintDocument DocumentOf(const PrintedLines& lines) {
  PrintDocument document;
  for (const auto& [column, line] : lines) document.push_back({line, column});
  return document;
}

class QtPrinterTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!service.Missing().empty()) GTEST_SKIP() << "no print service: " << service.Missing();
    service.SetPrinter("A4");
  }

  void Print(const PrintedLines& lines) { printer.Print(DocumentOf(lines)); }
  // Prints the lines and expects them on the pages.
  PrintedPages ExpectPrinted(const PrintedLines& lines) {
    Print(lines);
    PrintedPages pages(service.Printed());
    ExpectLines(pages, lines);
    return pages;
  }
  static void ExpectLines(PrintedPages& pages, const PrintedLines& lines) {
    for (const auto& [column, line] : lines) pages.ExpectLine(column, line);
    pages.ExpectEnd();
  }

  PrintService& service = PrintService::Instance();
  QtPrinter printer;
};

TEST_F(QtPrinterTest, PrintsAtTabColumns) {
  PrintedLines lines = {{1, std::string(90, 'm')}};
  for (const int column : {1, 2, 7, 40, 50, 77, 96}) lines.emplace_back(column, "Tab");
  EXPECT_EQ(ExpectPrinted(lines).Columns(), 96);
}

TEST_F(QtPrinterTest, WrapsLongLinesAtTheirTabColumn) {
  std::string words;
  for (int i = 0; i < 400; ++i)
    words += "word" + std::to_string(i * i) + (i % 7 == 0 ? "   " : " ");
  const std::string endless(10'000, 'W');
  ExpectPrinted({{1, "At the left margin"},
                 {7, words},
                 {40, words},
                 {1, endless},
                 {50, endless},
                 {7, std::string(13, ' ') + endless.substr(0, 300) + " end"},
                 {1, std::string(96, 'm')},
                 {1, std::string(97, 'm')},
                 {90, "narrow as it can be here"}});
}

TEST_F(QtPrinterTest, BreaksPagesBetweenLines) {
  PrintedLines lines;
  for (int i = 0; i < 301; ++i) {
    lines.emplace_back(i % 3 + 1, i % 10 == 9 ? "" : "Line " + std::to_string(i));
  }
  const PrintedPages pages = ExpectPrinted(lines);
  EXPECT_EQ(pages.Count(), (301 + pages.RowCount(0) - 1) / pages.RowCount(0));
}

TEST_F(QtPrinterTest, PrintsEachCharacterInOneColumn) {
  // With ligatures, wide and invisible characters and markup.
  const std::string special =
      "Caf\xE9 \x80 5, \x93quoted\x94 \x96 na\xEFve "
      "\x8A\x8E\x9F \xA7\xB5\xBD\xDE|";
  std::string all;
  for (int c = 0x21; c < 0x7F; ++c) all += static_cast<char>(c);
  for (int c = 0xA1; c < 0x100; ++c) all += static_cast<char>(c == 0xAD ? '-' : c);
  Print({{1,
          "fi ffl -> == |a\tb|c\xAD"
          "d|e\x81"
          "f|g\x01"
          "h|<i>&amp;|"},
         {7, special},
         {1, all}});
  PrintedPages pages(service.Printed());
  ExpectLines(pages, {{1, "fi ffl -> == |a b|c-d|e f|g h|<i>&amp;|"}, {7, special}, {1, all}});
}

TEST_F(QtPrinterTest, AdaptsToThePaper) {
  service.SetPrinter("A6");
  const std::string wide(100, 'm'), beyond = "beyond this page's edge";
  Print({{1, wide}, {40, beyond}});
  PrintedPages pages(service.Printed());
  EXPECT_LT(pages.Columns(), 50);
  ExpectLines(pages, {{1, wide}, {39 % pages.Columns() + 1, beyond}});
}

TEST_F(QtPrinterTest, SeparatesDocumentsAndNeedsAPrinter) {
  ExpectPrinted({{1, "The first"}});
  Print({{1, "The second"}});
  PrintedPages second(service.Printed(2));
  ExpectLines(second, {{1, "The second"}});
  PrintService::RemovePrinters();
  EXPECT_FALSE(printer.IsThere());
  const PrintedLines lines = {{7, "Nowhere"}, {1, std::string(200, 'm')}};
  EXPECT_THROW(Print(lines), RuntimeError);
  const std::string file = testing::TempDir() + "saved.pdf";
  WriteFile(file, printer.Pdf(DocumentOf(lines)));
  PrintedPages saved(file);
  ExpectLines(saved, lines);
  service.SetPrinter("A4");
  Print({{0, "Here"}});  // column 0 counts as 1
  PrintedPages here(service.Printed());
  ExpectLines(here, {{1, "Here"}});
}

}  // namespace
}  // namespace benevix
