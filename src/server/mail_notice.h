#pragma once

#include <optional>
#include <string>

#include "server/server_files.h"

namespace benevix {

// A mail that the server's script sends. The texts go out as they stand, so that an "&" in one of
// them begins another key of the request.
struct MailNotice {
  std::string sender;
  std::optional<std::string> recipient;  // nothing: who the server says gets the notices
  std::string subject;
  std::string body;
};

enum class MailResult { Sent, NoScript, NotSent };

struct MailOutcome {
  MailResult result = MailResult::NoScript;
  std::string address;  // what was asked for; empty without a script
};

// Asks the server where its mail script is and sends the notice through it. It is sent when the
// answer says "Thank You". Raises nothing.
MailOutcome SendMailNotice(ServerFiles& server, const MailNotice& notice);

}  // namespace benevix
