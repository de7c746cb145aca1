#include "records/printing.h"

#include <cstdio>
#include <string_view>

#include "base/lines.h"
#include "base/runtime_error.h"
#include "core/date_text.h"
#include "records/history.h"
#include "records/session_record.h"

namespace benevix {

void Printing::mnuPrntSession_Click() {
  PrintReport([this] { PrintSession(finalization_.LastRecord()); });
}

void Printing::mnuPrtHistory_Click() {
  PrintReport([this] {
    PrintPageHeading();
    PrintHistory();
    PrintDocumentEnd();
  });
}

std::string Printing::PrintMessage(const std::string& from, const std::string& to,
                                   const std::string& subject, const std::string& message) {
  return PrintDocument([&] {
    PrintPageHeading();
    PrintLine("From: " + from);
    PrintLine("To: " + to);
    PrintLine("Subject: " + subject);
    PrintLine("");
    for (const std::string_view line : Lines(message)) PrintLine(std::string(line));
    PrintDocumentEnd();
  });
}

std::string Printing::PrintDocument(const std::function<void()>& body) {
  std::string error;
  try {
    body();
  } catch (const RuntimeError& failure) {
    error = failure.what();
  }
  // After an error, too, so that the next document does not continue this one.
  environment_.printer.EndDoc();
  return error;
}

void Printing::PrintReport(const std::function<void()>& body) {
  PrintWaitNotice();
  const std::string error = PrintDocument(body);
  if (error.empty()) return;
  desk_.Unload(wait_);
  main_.Label6.caption = error;
}

void Printing::PrintLine(const std::string& line, int column) {
  environment_.printer.PrintLine(column, line);
}

void Printing::PrintWaitNotice() {
  desk_.Load(wait_);
  wait_.caption = environment_.info.deployment.product + " - Printing...";
  wait_.Label2.caption = "Sending data to the default Printer. Please wait...";
  wait_.Timer1.enabled = true;
  desk_.Show(wait_);
  environment_.waits.DoEvents();
}

void Printing::PrintPageHeading() {
  constexpr int column = 40;
  const Deployment& deployment = environment_.info.deployment;
  PrintLine(" -- " + deployment.product + "  " + deployment.copyright + " -- ", column);
  PrintLine("");
  PrintLine("");
}

void Printing::PrintTitle(const std::string& title) {
  constexpr int column = 50;
  PrintLine(environment_.info.deployment.product + title, column);
  PrintLine("");
  PrintLine("");
}

void Printing::PrintDocumentEnd() {
  const DateTime now = environment_.clock.Now();
  char seconds[8];
  std::snprintf(seconds, sizeof seconds, ":%02d", static_cast<int>(now.second));
  PrintLine("");
  PrintLine(" ------------------------- End Doc ------ " + DateText(now) + " @ " + TimeText(now) +
            seconds + " ------------- " + environment_.info.deployment.serverBase +
            " ------------- ");
}

void Printing::PrintSession(const SessionRecord& record) {
  PrintPageHeading();
  PrintTitle(" - Current Session");
  PrintLine(HeadingLine(record.time));
  PrintLine(TransactionLine(record));
  for (const std::string& line : OrganizationLines(main_.ListView1)) PrintLine(line);
  PrintLine(PaymentLine(record));
  PrintDocumentEnd();
}

void Printing::PrintHistory() {
  constexpr int column = 7;
  PrintTitle(" - Sessions History");
  const FilePath file = environment_.info.Resource("history.dat");
  if (!environment_.files.Exists(file)) throw RuntimeError(kNoHistory);
  const std::string history = environment_.files.ReadAll(file);
  for (const std::string_view line : Lines(history)) PrintLine(std::string(line), column);
}

}  // namespace benevix
