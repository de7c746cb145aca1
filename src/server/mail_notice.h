#pragma once

#include <optional>
#include <string>

#include "server/server_files.h"

namespace benevix {

// A mail that the server's script sends. Intended: the texts are not escaped, so an "&" in one of
// them begins another key of the request.
struct MailNotice {
  std::string sender;
  std::optional<std::string> recipient;  // if not set, the one the server names
  std::string subject;
  std::string body;
};

enum class MailResult { Sent, NoScript, NotSent };

struct MailOutcome {
  MailResult result = MailResult::NoScript;
  std::string address;  // as requested; empty without a script
};

// Asks the server for its mail script and sends the notice through it. It counts as sent when the
// answer contains "Thank You". Raises nothing.
MailOutcome SendMailNotice(ServerFiles& server, const MailNotice& notice);

}  // namespace benevix
