#include "records/finalization.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "records/transaction.h"
#include "session/hints.h"
#include "session/payment_amount.h"

namespace benevix {

void Finalization::Command1_Click() {
  windows_.main.Command1.tag = "1";
  windows_.main.mousePointer = MousePointer::Hourglass;
  std::string heading;
  Finalize(heading);
}

void Finalization::Finalize(std::string& heading) {
  const int option = Chosen(windows_.payment.Option1);
  if (option < 0) {
    RestorePointer();
    desk_.Show(windows_.payment);
    return;
  }
  try {
    Run(option, heading);
  } catch (const RuntimeError&) {
    RestorePointer();
    ShowUnavailable();
  }
}

void Finalization::Run(int option, std::string& heading) {
  frmBVX& main = windows_.main;
  // The ID is made before the server is asked; nothing is sent or stored while it may not answer.
  const std::string contact = ContactText();
  const std::string transactionId =
      TransactionId(surroundings_.clock, surroundings_.random, option);
  server_.CheckServerStatus();
  if (!run_.ServerOK) {
    messages_.ShowMessage(message::kServerBusy, message_kind::kFailedToConnect);
    return RestorePointer();
  }
  server_.LoadFeeRates(rates_);
  Prepared prepared = Prepare(option);
  prepared.contact = contact;
  prepared.session.transactionId = transactionId;
  if (!SendNotice(prepared)) return;
  OpenPaymentPage(prepared);
  history_.WriteHistory(prepared.session, main.ListView1, heading);
  lastHeading_ = heading;
  lastRecord_ = prepared.session;
  main.mnuPrntSession.enabled = true;
  ShowHint(main, hint::kFinalized);
  desk_.SetFocus(main.ListView1);  // one more Enter must not pay once more
  main.Command1.tag.clear();
}

std::string Finalization::ContactText() const {
  std::string text;
  for (const TextBox& box : windows_.contact.Text1) text += box.text + ",";
  text.pop_back();
  return codec_.Scramble(text);
}

Finalization::Prepared Finalization::Prepare(int option) {
  const frmBVX& main = windows_.main;
  Prepared prepared;
  prepared.option = option;
  prepared.records = OrganizationRecords(main.ListView1);
  settings_.SaveUserString("LastSession", DateText(surroundings_.clock.Now()) + prepared.records);
  prepared.records += RankingText();
  prepared.session.budget = values_.Budget;
  prepared.session.charged =
      ChargedTotal(values_, rates_, main.ListView1, option, main.mnuAddFees.checked);
  prepared.session.amountText = PaymentAmount(values_, rates_, ServiceFeeTotal(main.ListView1),
                                              option, main.mnuRound.checked);
  return prepared;
}

std::string Finalization::RankingText() {
  const int takesPart = windows_.contact.Check1.value;
  std::string text = "," + std::to_string(takesPart);
  if (takesPart != 1) return text;
  const std::string stored = codec_.Unscramble(settings_.GetUserString("RankOpt"));
  const std::string option(Trim(stored));
  if (!option.empty()) text += "," + codec_.Scramble(option);
  return text;
}

bool Finalization::SendNotice(const Prepared& prepared) {
  const auto contactData = server_.GetContactData();
  if (!contactData) {
    ShowUnavailable();
    RestorePointer();
    return false;
  }
  const Deployment& deployment = surroundings_.info.deployment;
  const std::string& id = prepared.session.transactionId;
  const std::string notice = deployment.serverBase + contactData->script +
                             "email=" + deployment.mail + "&recipient=" + contactData->recipient +
                             "&subject=" + id + "&=" + id + "/" + prepared.contact +
                             prepared.records;
  std::string reply;
  try {
    reply = server_.OpenURL(notice);
  } catch (const RuntimeError&) {
    // No answer counts as one without thanks.
  }
  if (reply.find("Thank You") == std::string::npos) {
    ShowUnavailable();  // the busy pointer stays on purpose
    return false;
  }
  RestorePointer();
  // An empty field must never reach the payment.
  if (notice.find(",,") != std::string::npos) desk_.End();
  return true;
}

void Finalization::OpenPaymentPage(const Prepared& prepared) {
  const Deployment& deployment = surroundings_.info.deployment;
  frmInfo& viewer = windows_.viewer;
  desk_.Load(viewer);
  desk_.Show(viewer);
  viewer.ShowPage(
      PaymentRequest(deployment.paymentBase, deployment.serverBase, Payee(rates_, prepared.option),
                     prepared.session.transactionId, prepared.session.amountText),
      " Secure Funds Transfer");
}

void Finalization::ShowUnavailable() {
  messages_.ShowMessage(message::kServiceUnavailable, message_kind::kFailedToConnect);
}

}  // namespace benevix
