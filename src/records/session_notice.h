#pragma once

#include "journal/journal.h"
#include "people/contact_information.h"
#include "people/donors_ranking.h"
#include "platform/environment.h"
#include "records/last_session.h"
#include "records/session_record.h"
#include "server/mail_notice.h"
#include "server/server_files.h"
#include "session/charges.h"

namespace benevix {

// Creates a session's transaction and sends the server a notice of it, before it is paid.
class SessionNotice {
 public:
  SessionNotice(const frmBVX& main, const Charges& charges, ServerFiles& server,
                const ContactInformation& contact, DonorsRanking& ranking, LastSession& lastSession,
                Journal& journal, Environment& environment)
      : main_(main),
        charges_(charges),
        server_(server),
        contact_(contact),
        ranking_(ranking),
        lastSession_(lastSession),
        journal_(journal),
        environment_(environment) {}

  enum class Result {
    Sent,
    ServerBusy,    // not available; nothing was sent or stored
    NoMailScript,  // the server does not say where its mail script is
    NotAccepted,   // the mail script did not accept the notice
    EmptyField     // sent, but with an empty field: such a session must not be paid
  };
  struct Outcome {
    Result result = Result::ServerBusy;
    PaymentDue due;
    SessionRecord session;
  };

  // Needs a chosen payment method. Stores the session for Recall Last Session before the notice is
  // sent. Raises RuntimeError on overflow or if contact details or ranking cannot be encoded.
  Outcome Send();

 private:
  MailOutcome SendMail(const std::string& id, const std::string& session);

  const frmBVX& main_;
  const Charges& charges_;
  ServerFiles& server_;
  const ContactInformation& contact_;
  DonorsRanking& ranking_;
  LastSession& lastSession_;
  Journal& journal_;
  Environment& environment_;
};

}  // namespace benevix
