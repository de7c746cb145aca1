#pragma once

#include <string>

#include "core/messages.h"
#include "server/server_files.h"

namespace benevix {

// The two addresses that the server keeps for each organization: where it can be contacted and its
// web site.
class OrganizationContacts {
 public:
  OrganizationContacts(ServerFiles& server, Messages& messages)
      : server_(server), messages_(messages) {}

  enum class Result { Found, NotFound, NoList };

  // `first` and `second` receive the addresses of every record read, so for an ID that is not there
  // they hold the last record's. Without a list message 10 is shown and they stay as they were.
  Result LookupContacts(const std::string& id, std::string& first, std::string& second);

 private:
  ServerFiles& server_;
  Messages& messages_;
};

}  // namespace benevix
