#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace benevix {

// The text of a PDF file as rows of fixed-pitch characters. Expects margins of a sixteenth of the
// page's width; words in the margins or not aligned to the columns are test failures.
class PrintedPages {
 public:
  explicit PrintedPages(const std::string& file);

  [[nodiscard]] std::size_t Count() const { return rows_.size(); }
  [[nodiscard]] std::size_t RowCount(std::size_t page) const { return rows_[page].size(); }
  // Characters per row.
  [[nodiscard]] int Columns() const { return columns_; }

  // Consumes the next rows: `line` at its tab column, counted from 1, wrapped at that column. Empty
  // lines at the very end cannot be seen and are accepted.
  void ExpectLine(int column, const std::string& line);
  void ExpectEnd() const;

 private:
  // Points from the page's upper left corner.
  struct Word {
    std::size_t page = 0;
    double left = 0, top = 0, right = 0, bottom = 0;
    std::string text;  // in the code page
  };

  void ReadWords(const std::string& file);
  void Measure();
  void BuildRows();
  [[nodiscard]] std::string NextRow();

  double pageWidth_ = 0, pageHeight_ = 0;
  double left_ = 0, columnWidth_ = 0, rowHeight_ = 0;  // points
  int columns_ = 0;
  std::vector<Word> words_;
  std::vector<std::vector<std::string>> rows_;  // by page
  std::size_t page_ = 0, row_ = 0;              // next row of ExpectLine
};

}  // namespace benevix
