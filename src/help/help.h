#pragma once

#include <string>

#include "controls/desk.h"
#include "core/messages.h"
#include "forms/frmBVX.h"
#include "forms/frmInfo.h"
#include "platform/program_info.h"

namespace benevix {

// Help pages and the About box.
class Help {
 public:
  Help(frmInfo& viewer, frmBVX& main, Desk& desk, Messages& messages, const ProgramInfo& info)
      : viewer_(viewer), main_(main), desk_(desk), messages_(messages), info_(info) {}

  // A page of the Resources folder, with or without an anchor.
  void ShowPage(const std::string& page, const std::string& title = frmInfo::kTitle);

  // The quick-help page at the topic of a menu element.
  void qhelp1_Click(int index);
  void whatisBtn1_Click();
  void mnuHelp_Click();
  void mnuSubmitList_Click();
  void mnuAbout_Click();
  void gotoBVXweb_Click();

 private:
  frmInfo& viewer_;
  frmBVX& main_;
  Desk& desk_;
  Messages& messages_;
  const ProgramInfo& info_;
};

}  // namespace benevix
