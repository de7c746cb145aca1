#pragma once

#include "controls/desk.h"
#include "core/messages.h"
#include "forms/frmBVX.h"
#include "help/information_viewer.h"
#include "records/history.h"
#include "records/session_notice.h"
#include "session/payment_options.h"
#include "session/session_values.h"

namespace benevix {

// Continue: sends the notice of the session, opens its payment page and records it in the history.
class Finalization {
 public:
  Finalization(frmBVX& main, const SessionValues& values, Desk& desk, PaymentOptions& payment,
               SessionNotice& notice, InformationViewer& viewer, History& history, Journal& journal,
               Messages& messages, const Deployment& deployment)
      : main_(main),
        values_(values),
        desk_(desk),
        payment_(payment),
        notice_(notice),
        viewer_(viewer),
        history_(history),
        journal_(journal),
        messages_(messages),
        deployment_(deployment) {}

  // The Continue button.
  void Command1_Click();

  // Finalizes the session; without a payment method only asks for one. Errors show a message.
  void Finalize();

  // The last finalized session, for its printout.
  [[nodiscard]] const SessionRecord& LastRecord() const { return lastRecord_; }

 private:
  // Asks before a session without a donation is sent, and before one that was already sent and
  // has not changed since.
  [[nodiscard]] bool MayContinue();
  // What tells whether the session has changed: its rows, Budget and rounding. The payment method
  // cannot change before the next session.
  [[nodiscard]] std::string Contents() const;
  void Commit(const SessionNotice::Outcome& sent);
  void RestorePointer() { main_.mousePointer = MousePointer::Default; }
  void Fail(std::uint8_t message);

  frmBVX& main_;
  const SessionValues& values_;
  Desk& desk_;
  PaymentOptions& payment_;
  SessionNotice& notice_;
  InformationViewer& viewer_;
  History& history_;
  Journal& journal_;
  Messages& messages_;
  const Deployment& deployment_;
  SessionRecord lastRecord_;
  std::string lastContents_;  // of the session of lastRecord_
};

}  // namespace benevix
