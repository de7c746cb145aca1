#include "server/organization_information.h"

#include "base/runtime_error.h"
#include "database/organization_list.h"

namespace benevix {
namespace {

constexpr const char* kUnavailable = "  Information Unavailable at this time. Try again later.";

bool BeginsWithHttp(const std::string& address) {
  return address.compare(0, 4, "http") == 0;
}

}  // namespace

void OrganizationInformation::MoreInfo() {
  const std::string id = main_.ListView1.SelectedText(column::kId);
  if (!server_.CheckServerStatus()) {
    messages_.ShowMessage(message::kServerBusy, message_kind::kFailedToConnect);
    main_.mousePointer = MousePointer::Default;
    return;
  }
  viewer_.AwaitText();
  const std::string page = InformationPage(id);
  viewer_.ShowText(page, "About " + main_.ListView1.SelectedText(column::kOrganization),
                   page == kUnavailable
                       ? "The Resources menu leads to their web site, and to a message to them."
                       : "");
}

std::string OrganizationInformation::InformationPage(const std::string& id) {
  constexpr int attempts = 4;
  WaitNotice notice(wait_);
  HttpOptions options;
  options.purpose = "Retrieving the information page...";
  options.progress = notice.Progress();
  for (int i = 0; i < attempts; ++i) {
    wait_.waits.DoEvents();
    try {
      const std::string page = server_.FetchServerText("infoDB/" + id + ".dat", options);
      if (!page.empty() && page.find("404") == std::string::npos) return page;
    } catch (const RuntimeError&) {
      // The next attempt may succeed.
    }
  }
  return kUnavailable;
}

void OrganizationInformation::Contact() {
  std::string contact;
  std::string web;
  const auto result = [&] {
    const WaitNotice notice(wait_);
    return contacts_.LookupContacts(main_.ListView1.SelectedText(column::kId), contact, web);
  }();
  if (result == OrganizationContacts::Result::NotFound) {
    messages_.ShowMessage(message::kServiceUnavailable, message_kind::kFailedToConnect);
  }
  if (result != OrganizationContacts::Result::Found) return;
  if (BeginsWithHttp(contact)) return viewer_.ShowPage(Page::Web(contact));
  writeTo_(contact);
}

void OrganizationInformation::WebSite() {
  std::string contact;
  std::string web;
  const auto result =
      contacts_.LookupContacts(main_.ListView1.SelectedText(column::kId), contact, web);
  if (result == OrganizationContacts::Result::NoList) return;
  if (result == OrganizationContacts::Result::Found && BeginsWithHttp(web))
    return viewer_.ShowPage(Page::Web(web));
  messages_.ShowMessage(message::kNoWebService, message_kind::kNone);
}

}  // namespace benevix
