#pragma once

#include <string>

#include "core/messages.h"
#include "server/server_files.h"

namespace benevix {

// The two addresses that the server keeps for each organization: its contact and its web site. The
// file is "QUORL", one more character, and a line "ID:contact;web" for each organization.
class OrganizationContacts {
 public:
  OrganizationContacts(ServerFiles& server, Messages& messages)
      : server_(server), messages_(messages) {}

  enum class Result { Found, NotFound, NoList };

  // `first` and `second` receive the addresses of every record read, so for an unknown ID they hold
  // those of the last record. Without a list message 10 is shown and they are unchanged.
  Result LookupContacts(const std::string& id, std::string& first, std::string& second);

 private:
  ServerFiles& server_;
  Messages& messages_;
};

}  // namespace benevix
