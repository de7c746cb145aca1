#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace benevix {

// What a PDF file shows, read as rows of fixed-pitch characters as wide as
// those of its widest word, between margins of a sixteenth of the page's width.
// Words that stand outside of the margins or between two columns are failures.
class PrintedPages {
 public:
  explicit PrintedPages(const std::string& file);

  [[nodiscard]] std::size_t Count() const { return rows_.size(); }
  [[nodiscard]] std::size_t RowCount(std::size_t page) const { return rows_[page].size(); }
  // How many characters fit between the margins.
  [[nodiscard]] int Columns() const { return columns_; }

  // Takes the next rows: the line at its tab column, counted from 1, and what
  // is left of it in rows at the same column. Empty lines at the very end do
  // not show.
  void ExpectLine(int column, const std::string& line);
  void ExpectEnd() const;

 private:
  // Points from the page's upper left corner.
  struct Word {
    std::size_t page = 0;
    double left = 0, top = 0, right = 0, bottom = 0;
    std::string text;  // of the code page
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
  std::size_t page_ = 0, row_ = 0;              // what ExpectLine takes next
};

}  // namespace benevix
