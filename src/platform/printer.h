#pragma once

#include <string>

namespace benevix {

// The system's default printer, line by line.
class Printer {
 public:
  virtual ~Printer() = default;
  // Prints a line of the code page that begins at a tab column, counted from 1; the first one
  // begins a document. Raises RuntimeError without a printer.
  virtual void PrintLine(int column, const std::string& line) = 0;
  // Ends the document and sends it; does nothing when none was begun. Raises nothing.
  virtual void EndDoc() = 0;
};

}  // namespace benevix
