#pragma once

#include <QString>
#include <memory>

#include "platform/printer.h"

class QPainter;
class QPrinter;

namespace benevix {

// The system's default printer. Lines stand in a fixed-pitch font; what is wider than the page is
// wrapped under its tab column; pages break between lines. A tab column beyond the page counts on
// from the left margin.
class QtPrinter : public Printer {
 public:
  QtPrinter();
  ~QtPrinter() override;

  void PrintLine(int column, const std::string& line) override;
  void EndDoc() override;

 private:
  void BeginDoc();
  // `column` counts from 0.
  void PrintRow(int column, const QString& text);

  std::unique_ptr<QPrinter> printer_;
  std::unique_ptr<QPainter> painter_;  // there while a document is open
  // Device dots; fractions, since a hundred rounded columns are a column off.
  double columnWidth_ = 0;
  double y_ = 0;  // from the top margin
};

}  // namespace benevix
