#pragma once

#include <QString>
#include <memory>

#include "platform/printer.h"

class QPainter;
class QPrinter;

namespace benevix {

// The system's default printer. Lines are printed in a fixed-pitch font; lines wider than the page
// are wrapped at their tab column. A tab column beyond the right margin continues from the left
// one.
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
  std::unique_ptr<QPainter> painter_;  // null when no document is open
  // In device pixels. Not rounded: over a hundred columns the error would be a whole column.
  double columnWidth_ = 0;
  double y_ = 0;  // from the top margin
};

}  // namespace benevix
