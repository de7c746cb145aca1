#pragma once

#include <functional>
#include <string>

#include "controls/desk.h"
#include "core/messages.h"
#include "forms/frmBVX.h"
#include "forms/frmInfo.h"
#include "forms/frmWait.h"
#include "platform/surroundings.h"
#include "server/organization_contacts.h"
#include "server/server_files.h"

namespace benevix {

// What can be learned of the selected organization, and how it is reached.
class OrganizationInformation {
 public:
  struct Windows {
    frmBVX& main;
    frmInfo& viewer;
    frmWait& wait;
  };

  // `writeTo` opens the messenger for a mail recipient.
  OrganizationInformation(Windows windows, Desk& desk, ServerFiles& server,
                          OrganizationContacts& contacts, Messages& messages, RunValues& run,
                          Waits& waits, std::function<void(const std::string&)> writeTo)
      : windows_(windows),
        desk_(desk),
        server_(server),
        contacts_(contacts),
        messages_(messages),
        run_(run),
        waits_(waits),
        writeTo_(std::move(writeTo)) {}

  void MoreInfo();
  void Contact();
  void WebSite();

 private:
  [[nodiscard]] std::string Selected(int column) const;
  [[nodiscard]] std::string InformationPage(const std::string& id);
  void ShowPage(const std::string& address);

  Windows windows_;
  Desk& desk_;
  ServerFiles& server_;
  OrganizationContacts& contacts_;
  Messages& messages_;
  RunValues& run_;
  Waits& waits_;
  std::function<void(const std::string&)> writeTo_;
};

}  // namespace benevix
