#include "server/mail_notice.h"

#include "base/runtime_error.h"

namespace benevix {

MailOutcome SendMailNotice(ServerFiles& server, const MailNotice& notice) {
  const auto contactData = server.GetContactData();
  if (!contactData) return {};
  const std::string path = contactData->script + "email=" + notice.sender +
                           "&recipient=" + notice.recipient.value_or(contactData->recipient) +
                           "&subject=" + notice.subject + "&=" + notice.body;
  MailOutcome outcome{MailResult::NotSent, server.Base() + path};
  try {
    const std::string answer = server.FetchServerText(path, {.purpose = "Sending..."});
    if (answer.find("Thank You") != std::string::npos) outcome.result = MailResult::Sent;
  } catch (const RuntimeError&) {
    // Without an answer the notice counts as not sent.
  }
  return outcome;
}

}  // namespace benevix
