#pragma once

#include <string>
#include <vector>

namespace benevix {

// A document to print: its lines, in the code page, each beginning at a tab column, counted from 1.
struct PrintLine {
  std::string text;
  int column = 1;
};
using PrintDocument = std::vector<PrintLine>;

inline constexpr const char* kNoPrinter = "There is no printer";

class Printer {
 public:
  virtual ~Printer() = default;
  // Whether the system has a default printer.
  [[nodiscard]] virtual bool IsThere() const = 0;
  // Prints on it. Raises RuntimeError when that cannot be done.
  virtual void Print(const PrintDocument& document) = 0;
  // The bytes of a PDF file with the same pages, for which no printer is needed. Raises
  // RuntimeError.
  [[nodiscard]] virtual std::string Pdf(const PrintDocument& document) const = 0;
};

}  // namespace benevix
