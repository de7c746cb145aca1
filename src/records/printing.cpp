#include "records/printing.h"

#include <cstdio>
#include <string_view>

#include "base/lines.h"
#include "base/runtime_error.h"
#include "core/date_text.h"
#include "core/output.h"
#include "records/history.h"
#include "records/session_record.h"

namespace benevix {

void Printing::mnuPrntSession_Click() {
  PrintReport([this] { return SessionReport(finalization_.LastRecord()); }, "Session");
}

void Printing::mnuPrtHistory_Click() {
  PrintReport([this] { return HistoryReport(); }, "Donation History");
}

std::string Printing::PrintMessage(const std::string& from, const std::string& to,
                                   const std::string& subject, const std::string& message) {
  PrintDocument document = PageHeading();
  document.push_back({"From: " + from});
  document.push_back({"To: " + to});
  document.push_back({"Subject: " + subject});
  document.push_back({});
  for (const std::string_view line : Lines(message)) document.push_back({std::string(line)});
  AddEnd(document);
  return PrintOrSave(environment_, document, "Message");
}

void Printing::PrintReport(const std::function<PrintDocument()>& make, const std::string& name) {
  try {
    const PrintDocument document = make();
    if (environment_.printer.IsThere()) PrintWaitNotice();
    const std::string told = PrintOrSave(environment_, document, name);
    if (told.empty()) return;
    main_.Label6.caption = told;
  } catch (const RuntimeError& error) {
    main_.Label6.caption = error.what();
  }
  desk_.Unload(wait_);
}

void Printing::PrintWaitNotice() {
  desk_.Load(wait_);
  wait_.caption = environment_.info.deployment.product + " - Printing...";
  wait_.Label2.caption = "Sending data to the default Printer. Please wait...";
  wait_.Timer1.enabled = true;
  desk_.Show(wait_);
  environment_.waits.DoEvents();
}

PrintDocument Printing::PageHeading() const {
  constexpr int column = 40;
  const Deployment& deployment = environment_.info.deployment;
  return {{" -- " + deployment.product + "  " + deployment.copyright + " -- ", column}, {}, {}};
}

void Printing::AddTitle(PrintDocument& document, const std::string& title) const {
  constexpr int column = 50;
  document.push_back({environment_.info.deployment.product + title, column});
  document.insert(document.end(), 2, {});
}

void Printing::AddEnd(PrintDocument& document) const {
  const DateTime now = environment_.clock.Now();
  char seconds[8];
  std::snprintf(seconds, sizeof seconds, ":%02d", static_cast<int>(now.second));
  document.push_back({});
  document.push_back({" ------------------------- End Doc ------ " + DateText(now) + " @ " +
                      TimeText(now) + seconds + " ------------- " +
                      environment_.info.deployment.serverBase + " ------------- "});
}

PrintDocument Printing::SessionReport(const SessionRecord& record) const {
  PrintDocument document = PageHeading();
  AddTitle(document, " - Current Session");
  document.push_back({HeadingLine(record.time)});
  document.push_back({TransactionLine(record)});
  for (const std::string& line : OrganizationLines(main_.ListView1)) document.push_back({line});
  document.push_back({PaymentLine(record)});
  AddEnd(document);
  return document;
}

PrintDocument Printing::HistoryReport() const {
  constexpr int column = 7;
  const FilePath file = environment_.info.Resource("history.dat");
  if (!environment_.files.Exists(file)) throw RuntimeError(kNoHistory);
  PrintDocument document = PageHeading();
  AddTitle(document, " - Sessions History");
  const std::string history = environment_.files.ReadAll(file);
  for (const std::string_view line : Lines(history))
    document.push_back({std::string(line), column});
  AddEnd(document);
  return document;
}

}  // namespace benevix
