#pragma once

#include <QFont>
#include <memory>

#include "platform/printer.h"

class QPainter;
class QPrinter;

namespace benevix {

// The system's default printer. Lines stand in a fixed-pitch font; what is wider than the page is
// wrapped under its tab column; pages break between lines.
class QtPrinter : public Printer {
 public:
  QtPrinter();
  ~QtPrinter() override;

  void PrintLine(int column, const std::string& line) override;
  void EndDoc() override;

 private:
  void BeginDoc();
  void PrintRow(int column, const QString& text);

  QFont font_;
  std::unique_ptr<QPrinter> printer_;
  std::unique_ptr<QPainter> painter_;
  int y_ = 0;  // device dots from the top margin
};

}  // namespace benevix
