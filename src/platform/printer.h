#pragma once

#include <string>

namespace benevix {

// The system's default printer, line by line.
class Printer {
 public:
  virtual ~Printer() = default;
  // Prints a line (code page) at a tab column, counted from 1; the first line begins a document.
  // Raises RuntimeError when there is no usable printer.
  virtual void PrintLine(int column, const std::string& line) = 0;
  // Ends the document and sends it to the printer. Does nothing without one. Raises nothing.
  virtual void EndDoc() = 0;
};

}  // namespace benevix
