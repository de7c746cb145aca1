#include "server/organization_contacts.h"

#include <algorithm>
#include <string_view>

#include "base/lines.h"
#include "base/runtime_error.h"

namespace benevix {

OrganizationContacts::Result OrganizationContacts::LookupContacts(const std::string& id,
                                                                  std::string& first,
                                                                  std::string& second) {
  constexpr std::string_view marker = "QUORL";
  std::string list;
  try {
    list = server_.FetchServerText("infoDB/idcontacts.dat",
                                   {.purpose = "Looking up the organization..."});
  } catch (const RuntimeError&) {
    // Reported below, like a list without its marker.
  }
  if (list.compare(0, marker.size(), marker) != 0) {
    messages_.ShowMessage(message::kMailFailed, message_kind::kFailedToConnect);
    return Result::NoList;
  }
  std::string_view rest = list;
  rest.remove_prefix(std::min(marker.size() + 1, rest.size()));
  while (rest.size() > 1) {
    // An incomplete record ends the lookup; what was read of it is kept.
    if (rest.find(':') == std::string_view::npos) break;
    const std::string_view recordId = CutField(rest, ':');
    if (rest.find(';') == std::string_view::npos) break;
    first = CutField(rest, ';');
    if (rest.find('\n') == std::string_view::npos) break;
    second = CutField(rest, '\n');
    if (recordId == id) return Result::Found;
  }
  return Result::NotFound;
}

}  // namespace benevix
