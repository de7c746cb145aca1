#include "records/finalization.h"

#include "base/runtime_error.h"
#include "core/date_text.h"
#include "records/transaction.h"
#include "session/hints.h"

namespace benevix {

void Finalization::Command1_Click() {
  if (!MayContinue()) return;
  main_.Command1.tag = "1";
  main_.mousePointer = MousePointer::Hourglass;
  Finalize();
}

bool Finalization::MayContinue() {
  const auto ask = [&](const std::string& question) {
    return messages_.Show(question, BoxIcon::Question, BoxButtons::NoByDefault) == BoxAnswer::Yes;
  };
  if (OrganizationRecords(main_.ListView1).empty() &&
      !ask("No donation has been entered. Continue anyway?")) {
    return false;
  }
  // The session can be printed from the time it is sent until the next one begins.
  const bool sent = main_.mnuPrntSession.enabled && Contents() == lastContents_;
  return !sent || ask("This session was sent at " + TimeText(lastRecord_.time) + " as " +
                      lastRecord_.transactionId + ". Send and pay it again?");
}

std::string Finalization::Contents() const {
  return OrganizationRecords(main_.ListView1) + "\n" + values_.Budget.ToText() +
         (main_.mnuRound.checked ? "\nrounded" : "");
}

void Finalization::Finalize() {
  if (!payment_.IsChosen()) {
    RestorePointer();
    return payment_.Ask();
  }
  try {
    using Result = SessionNotice::Result;
    const SessionNotice::Outcome outcome = notice_.Send();
    switch (outcome.result) {
      case Result::ServerBusy:
        Fail(message::kServerBusy);
        return RestorePointer();
      case Result::NoMailScript:
        Fail(message::kServiceUnavailable);
        return RestorePointer();
      case Result::NotAccepted:
        return Fail(message::kServiceUnavailable);  // the busy pointer stays on purpose
      case Result::EmptyField:
        RestorePointer();
        desk_.End();  // at once and without a word: such a session must not be paid
      case Result::Sent:
        RestorePointer();
        return Commit(outcome);
    }
  } catch (const RuntimeError&) {
    RestorePointer();
    Fail(message::kServiceUnavailable);
  }
}

void Finalization::Commit(const SessionNotice::Outcome& sent) {
  const std::string page =
      PaymentRequest(deployment_.paymentBase, deployment_.serverBase, sent.due.payee,
                     sent.session.transactionId, sent.session.amountText);
  if (!deployment_.paymentInBrowser) viewer_.ShowPage(Page::Web(page), " Secure Funds Transfer");
  lastRecord_ = history_.WriteHistory(sent.session, main_.ListView1);
  if (history_.IsWritten()) journal_.Recorded();
  lastContents_ = Contents();
  main_.mnuPrntSession.enabled = true;
  ShowHint(main_, hint::kFinalized);
  desk_.SetFocus(main_.ListView1);  // another Enter must not pay again
  main_.Command1.tag.clear();
  // Last, since it may show a message.
  if (deployment_.paymentInBrowser) viewer_.OpenInBrowser(page);
}

void Finalization::Fail(std::uint8_t message) {
  messages_.ShowMessage(message, message_kind::kFailedToConnect);
}

}  // namespace benevix
