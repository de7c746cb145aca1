#pragma once

#include <functional>
#include <string>

#include "core/messages.h"
#include "core/wait_notice.h"
#include "forms/frmBVX.h"
#include "help/information_viewer.h"
#include "server/organization_contacts.h"
#include "server/server_files.h"

namespace benevix {

// Shows information about the selected organization, and how to contact it.
class OrganizationInformation {
 public:
  // `writeTo` opens the messenger for a mail recipient.
  OrganizationInformation(frmBVX& main, InformationViewer& viewer, WaitWindow wait,
                          ServerFiles& server, OrganizationContacts& contacts, Messages& messages,
                          std::function<void(const std::string&)> writeTo)
      : main_(main),
        viewer_(viewer),
        wait_(wait),
        server_(server),
        contacts_(contacts),
        messages_(messages),
        writeTo_(std::move(writeTo)) {}

  void MoreInfo();
  // Opens the contact's web form, or the messenger for its mail address.
  void Contact();
  void WebSite();

 private:
  [[nodiscard]] std::string InformationPage(const std::string& id);

  frmBVX& main_;
  InformationViewer& viewer_;
  WaitWindow wait_;
  ServerFiles& server_;
  OrganizationContacts& contacts_;
  Messages& messages_;
  std::function<void(const std::string&)> writeTo_;
};

}  // namespace benevix
