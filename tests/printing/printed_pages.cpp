#include "printed_pages.h"

#include <QProcess>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <tuple>

#include "base/text.h"

namespace benevix {
namespace {

constexpr double kTolerance = 0.25;  // points; two dots of the printer

std::string TrimRight(const std::string& line) {
  return line.substr(0, line.find_last_not_of(' ') + 1);
}

}  // namespace

PrintedPages::PrintedPages(const std::string& file) {
  ReadWords(file);
  if (words_.empty()) {
    ADD_FAILURE() << file << " shows no word";
    return;
  }
  Measure();
  BuildRows();
}

void PrintedPages::ReadWords(const std::string& file) {
  QProcess reader;
  reader.start("pdftotext", {"-bbox", QString::fromStdString(file), "-"});
  reader.waitForFinished();
  std::size_t pages = 0;
  QXmlStreamReader xml(reader.readAllStandardOutput());
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    const auto number = [attributes = xml.attributes()](const char* name) {
      return attributes.value(QLatin1String(name)).toDouble();
    };
    if (xml.name() == QLatin1String("page")) {
      ++pages;
      pageWidth_ = number("width");
      pageHeight_ = number("height");
    } else if (xml.name() == QLatin1String("word")) {
      words_.push_back({pages - 1, number("xMin"), number("yMin"), number("xMax"), number("yMax"),
                        FromUtf8(xml.readElementText().toStdString())});
    }
  }
  std::ranges::sort(words_, {},
                    [](const Word& word) { return std::tuple(word.page, word.top, word.left); });
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  rows_.resize(pages);
}

void PrintedPages::Measure() {
  const auto width = [](const Word& word) { return word.right - word.left; };
  const Word& widest = *std::ranges::max_element(words_, {}, width);
  columnWidth_ = width(widest) / static_cast<double>(widest.text.size());
  // The printer rounds its margins; the first column follows from the words.
  const double margin = pageWidth_ / 16;
  const double fromMargin = words_.front().left - margin;
  left_ = words_.front().left - std::round(fromMargin / columnWidth_) * columnWidth_;
  EXPECT_NEAR(left_, margin, 1);
  columns_ = static_cast<int>((pageWidth_ - 2 * left_ + kTolerance) / columnWidth_);
  // Each distance is a whole number of rows, which the word's height tells; their mean is exact.
  double distance = 0;
  double rows = 0;
  for (std::size_t i = 1; i < words_.size(); ++i) {
    if (words_[i].page != words_[i - 1].page) continue;
    const double step = words_[i].top - words_[i - 1].top;
    distance += step;
    rows += std::round(step / (words_[i].bottom - words_[i].top));
  }
  rowHeight_ = rows > 0 ? distance / rows : pageHeight_;
}

void PrintedPages::BuildRows() {
  const double top = words_.front().top;
  for (const Word& word : words_) {
    EXPECT_GE(word.left, left_ - kTolerance) << word.text;
    EXPECT_LE(word.right, pageWidth_ - left_ + kTolerance) << word.text;
    EXPECT_LE(word.bottom, pageHeight_ - left_ + kTolerance) << word.text;
    const auto row = static_cast<std::size_t>(std::lround((word.top - top) / rowHeight_));
    const auto column =
        static_cast<std::size_t>(std::lround(std::max(word.left - left_, 0.0) / columnWidth_));
    EXPECT_NEAR(word.left - left_, static_cast<double>(column) * columnWidth_, kTolerance);
    std::vector<std::string>& rows = rows_[word.page];
    if (rows.size() <= row) rows.resize(row + 1);
    EXPECT_LE(rows[row].size(), column) << word.text << " overlaps other words";
    rows[row].resize(column, ' ');
    rows[row] += word.text;
  }
  std::size_t most = 0;
  for (const auto& rows : rows_) most = std::max(most, rows.size());
  for (std::size_t page = 0; page + 1 < rows_.size(); ++page) rows_[page].resize(most);
}

std::string PrintedPages::NextRow() {
  while (page_ < rows_.size() && row_ == rows_[page_].size()) {
    ++page_;
    row_ = 0;
  }
  return page_ < rows_.size() ? rows_[page_][row_++] : "(no more rows)";
}

void PrintedPages::ExpectLine(int column, const std::string& line) {
  std::string_view rest = Trim(line).empty() ? std::string_view() : std::string_view(line);
  if (rest.empty()) {
    const bool atEnd = page_ + 1 == rows_.size() && row_ == rows_[page_].size();
    if (!atEnd) {
      EXPECT_EQ(NextRow(), "");
    }
    return;
  }
  const std::string indent(static_cast<std::size_t>(column - 1), ' ');
  while (!rest.empty()) {
    const std::string row = NextRow();
    ASSERT_NE(row, "") << "instead of " << rest;
    const std::size_t length = row.size() > indent.size() ? row.size() - indent.size() : 0;
    ASSERT_EQ(row, TrimRight(indent + std::string(rest.substr(0, length)))) << line;
    rest.remove_prefix(std::min(length, rest.size()));
    const std::size_t blanks = std::min(rest.find_first_not_of(' '), rest.size());
    rest.remove_prefix(blanks);
    if (rest.empty()) return;
    // The row broke only because the next word did not fit.
    const std::size_t word = std::min(rest.find(' '), rest.size());
    EXPECT_GT(row.size() + blanks + word, static_cast<std::size_t>(columns_)) << row;
  }
}

void PrintedPages::ExpectEnd() const {
  EXPECT_EQ(page_ + 1, rows_.size());
  if (page_ < rows_.size()) {
    EXPECT_EQ(row_, rows_[page_].size());
  }
}

}  // namespace benevix
