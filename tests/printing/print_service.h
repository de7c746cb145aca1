#pragma once

#include <QProcess>
#include <string>

#include "../platform/surroundings_of_a_test.h"

namespace benevix {

// A print service of the test's own, CUPS in a temp folder, for this process
// and its children. Its printers write each job as a PDF into a file.
class PrintService {
 public:
  // The one of this process, running from its first use on.
  static PrintService& Instance();

  // Why there is no print service, or empty.
  [[nodiscard]] const std::string& Missing() const { return missing_; }

  // A default printer with no jobs yet, instead of the one before. Takes a
  // paper that the printer knows: "A4", "Letter", "A6".
  void SetPrinter(const std::string& paper);
  static void RemovePrinters();

  // The PDF file of the last of `jobs` documents sent to the printer, when all
  // are printed.
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
