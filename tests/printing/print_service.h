#pragma once

#include <QProcess>
#include <string>

#include "../platform/temp_files.h"

namespace benevix {

// A private CUPS in a temporary folder, used by this process and its children. It prints to a PDF
// file.
class PrintService {
 public:
  // Started at the first call.
  static PrintService& Instance();

  // Why there is no print service; empty when it runs.
  [[nodiscard]] const std::string& Missing() const { return missing_; }

  // Replaces the default printer by a new one without jobs. `paper` is a PPD page size: "A4",
  // "Letter", "A6".
  void SetPrinter(const std::string& paper);
  static void RemovePrinters();

  // Waits for `jobs` documents to be printed and returns the PDF file of the last.
  [[nodiscard]] std::string Printed(int jobs = 1);

 private:
  PrintService();
  ~PrintService();

  void Start();

  TempFolder folder_;
  QProcess daemon_;
  std::string missing_;
};

}  // namespace benevix
