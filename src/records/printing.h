#pragma once

#include <functional>
#include <string>

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "forms/frmWait.h"
#include "platform/environment.h"
#include "records/finalization.h"

namespace benevix {

// Prints the session just finalized, the whole history, or a message, on the default printer. A
// missing history or a printer error ends the printout, and the guidance line says so.
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
  // From, To, Subject, an empty line and the message's lines. Gives what went wrong, empty when
  // nothing did.
  std::string PrintMessage(const std::string& from, const std::string& to,
                           const std::string& subject, const std::string& message);

 private:
  // Runs `body` and ends the document, also after a missing file or a printer error, which it
  // gives.
  std::string PrintDocument(const std::function<void()>& body);
  // The same with a please-wait notice and the error in the guidance line.
  void PrintReport(const std::function<void()>& body);
  void PrintWaitNotice();
  void PrintPageHeading();
  void PrintDocumentEnd();
  // With the current donations of the list.
  void PrintSession(const SessionRecord& record);
  void PrintHistory();
  void PrintTitle(const std::string& title);
  void PrintLine(const std::string& line, int column = 1);

  Environment& environment_;
  frmWait& wait_;
  Desk& desk_;
  frmBVX& main_;
  const Finalization& finalization_;
};

}  // namespace benevix
