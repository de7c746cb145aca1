#include "server/organization_information.h"

#include "base/runtime_error.h"
#include "core/wait_notice.h"
#include "database/organization_list.h"

namespace benevix {
namespace {

bool IsWebAddress(const std::string& address) {
  return address.compare(0, 4, "http") == 0;
}

}  // namespace

std::string OrganizationInformation::Selected(int column) const {
  const ListView& list = windows_.main.ListView1;
  return list.SubItem(list.selected, column);
}

void OrganizationInformation::MoreInfo() {
  frmInfo& viewer = windows_.viewer;
  const std::string id = Selected(column::kId);
  server_.CheckServerStatus();
  if (!run_.ServerOK) {
    messages_.ShowMessage(message::kServerBusy, message_kind::kFailedToConnect);
    windows_.main.mousePointer = MousePointer::Default;
    return;
  }
  desk_.Load(viewer);
  viewer.Picture1.visible = false;
  viewer.wb1.visible = false;
  viewer.Label3.visible = true;
  desk_.Show(viewer, Modality::Modeless, Attention::KeepsMainDisabled);
  const std::string page = InformationPage(id);
  viewer.caption = "About " + Selected(column::kOrganization);
  viewer.PutText(page);
  viewer.Picture1.visible = true;
  desk_.SetFocus(viewer.VScroll1);  // so that the arrow keys move the text
  waits_.DoEvents();                // the text is measured as it is drawn
  viewer.MeasureText();
}

std::string OrganizationInformation::InformationPage(const std::string& id) {
  constexpr int attempts = 4;
  WaitNotice notice(windows_.wait, desk_, waits_);
  HttpOptions options;
  options.progress = notice.Progress();
  for (int i = 0; i < attempts; ++i) {
    waits_.DoEvents();
    try {
      const std::string page = server_.FetchServerText("infoDB/" + id + ".dat", options);
      if (!page.empty() && page.find("404") == std::string::npos) return page;
    } catch (const RuntimeError&) {
      // The next attempt may get through.
    }
  }
  return "  Information Unavailable at this time. Try again later.";
}

void OrganizationInformation::Contact() {
  std::string contact;
  std::string web;
  const auto result = [&] {
    const WaitNotice notice(windows_.wait, desk_, waits_);
    return contacts_.LookupContacts(Selected(column::kId), contact, web);
  }();
  if (result == OrganizationContacts::Result::NotFound) {
    messages_.ShowMessage(message::kServiceUnavailable, message_kind::kFailedToConnect);
  }
  if (result != OrganizationContacts::Result::Found) return;
  if (IsWebAddress(contact)) return ShowPage(contact);
  writeTo_(contact);
}

void OrganizationInformation::WebSite() {
  std::string contact;
  std::string web;
  const auto result = contacts_.LookupContacts(Selected(column::kId), contact, web);
  if (result == OrganizationContacts::Result::NoList) return;
  if (result == OrganizationContacts::Result::Found && IsWebAddress(web)) return ShowPage(web);
  messages_.ShowMessage(message::kNoWebService, message_kind::kNone);
}

void OrganizationInformation::ShowPage(const std::string& address) {
  desk_.Load(windows_.viewer);
  windows_.viewer.ShowPage(address);
  desk_.Show(windows_.viewer);
}

}  // namespace benevix
