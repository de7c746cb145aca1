#pragma once

#include "platform/printer.h"

namespace benevix {

// The system's default printer, and PDF files. Lines are printed in a fixed-pitch font; lines wider
// than the page are wrapped at their tab column. A tab column beyond the right margin continues
// from the left one. Needs a QGuiApplication.
class QtPrinter : public Printer {
 public:
  [[nodiscard]] bool IsThere() const override;
  void Print(const PrintDocument& document) override;
  [[nodiscard]] std::string Pdf(const PrintDocument& document) const override;
};

}  // namespace benevix
