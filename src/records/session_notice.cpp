#include "records/session_notice.h"

#include "records/transaction.h"

namespace benevix {

SessionNotice::Outcome SessionNotice::Send() {
  Outcome outcome;
  SessionRecord& session = outcome.session;
  // First, so that details that cannot be encoded stop everything before the server is asked.
  const std::string contact = contact_.ForNotice();
  session.transactionId =
      TransactionId(environment_.clock, environment_.random, charges_.ChosenMethod());
  if (!server_.CheckServerStatus()) return outcome;
  server_.LoadFeeRates();
  const std::string records = OrganizationRecords(main_.ListView1);
  lastSession_.Remember(records);
  const std::string ranking = ranking_.ForNotice(contact_.TakesPartInRanking());
  outcome.due = charges_.Due();
  session.budget = outcome.due.budget;
  session.charged = outcome.due.charged;
  session.amountText = outcome.due.amountText;

  const MailOutcome mail = SendMail(session.transactionId, contact + records + ranking);
  if (mail.result == MailResult::NoScript) {
    outcome.result = Result::NoMailScript;
  } else if (mail.result == MailResult::NotSent) {
    outcome.result = Result::NotAccepted;
  } else {
    const bool hasEmptyField = mail.address.find(",,") != std::string::npos;
    outcome.result = hasEmptyField ? Result::EmptyField : Result::Sent;
  }
  return outcome;
}

// The journal knows of the notice before the server does: when the program ends in between, the
// next start tells of it.
MailOutcome SessionNotice::SendMail(const std::string& id, const std::string& session) {
  journal_.Sending(id);
  MailOutcome mail = SendMailNotice(server_, {.sender = environment_.info.deployment.mail,
                                              .recipient = std::nullopt,
                                              .subject = id,
                                              .body = id + "/" + session});
  if (mail.result == MailResult::Sent) {
    journal_.Sent();
  } else {
    journal_.NotSent();
  }
  return mail;
}

}  // namespace benevix
