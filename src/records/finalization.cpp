#include "records/finalization.h"

#include "base/runtime_error.h"
#include "records/transaction.h"
#include "session/hints.h"

namespace benevix {

void Finalization::Command1_Click() {
  main_.Command1.tag = "1";
  main_.mousePointer = MousePointer::Hourglass;
  Finalize();
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
  viewer_.ShowPage(
      Page::Web(PaymentRequest(deployment_.paymentBase, deployment_.serverBase, sent.due.payee,
                               sent.session.transactionId, sent.session.amountText)),
      " Secure Funds Transfer");
  lastRecord_ = history_.WriteHistory(sent.session, main_.ListView1);
  main_.mnuPrntSession.enabled = true;
  ShowHint(main_, hint::kFinalized);
  desk_.SetFocus(main_.ListView1);  // another Enter must not pay again
  main_.Command1.tag.clear();
}

void Finalization::Fail(std::uint8_t message) {
  messages_.ShowMessage(message, message_kind::kFailedToConnect);
}

}  // namespace benevix
