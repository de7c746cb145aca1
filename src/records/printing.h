#pragma once

#include <functional>
#include <string>

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "forms/frmWait.h"
#include "platform/environment.h"
#include "records/finalization.h"

namespace benevix {

// Prints the session just finalized, the whole history, or a message, on the default printer;
// without one it can be saved as a PDF file. What went wrong is said in the guidance line.
class Printing {
 public:
  Printing(Environment& environment, frmWait& wait, Desk& desk, frmBVX& main,
           const Finalization& finalization)
      : environment_(environment),
        wait_(wait),
        desk_(desk),
        main_(main),
        finalization_(finalization) {}

  void mnuPrntSession_Click();
  void mnuPrtHistory_Click();
  // From, To, Subject, an empty line and the message's lines. Gives what the user should be told;
  // empty when it was printed.
  std::string PrintMessage(const std::string& from, const std::string& to,
                           const std::string& subject, const std::string& message);

 private:
  // With a please-wait notice. `make` may raise RuntimeError.
  void PrintReport(const std::function<PrintDocument()>& make, const std::string& name);
  void PrintWaitNotice();
  [[nodiscard]] PrintDocument PageHeading() const;
  void AddTitle(PrintDocument& document, const std::string& title) const;
  void AddEnd(PrintDocument& document) const;
  // With the current donations of the list.
  [[nodiscard]] PrintDocument SessionReport(const SessionRecord& record) const;
  [[nodiscard]] PrintDocument HistoryReport() const;

  Environment& environment_;
  frmWait& wait_;
  Desk& desk_;
  frmBVX& main_;
  const Finalization& finalization_;
};

}  // namespace benevix
