#pragma once

#include <string>

#include "core/messages.h"
#include "forms/frmBVX.h"
#include "help/information_viewer.h"
#include "platform/program_info.h"

namespace benevix {

// Help pages and the About box.
class Help {
 public:
  Help(InformationViewer& viewer, const frmBVX& main, Messages& messages, const ProgramInfo& info)
      : viewer_(viewer), main_(main), messages_(messages), info_(info) {}

  // Shows a page of the Resources folder; `page` may end in "#" and an anchor.
  void ShowPage(const std::string& page, const std::string& title = frmInfo::kTitle);

  // Shows the quick help at the topic of the menu item.
  void qhelp1_Click(int index);
  void whatisBtn1_Click();
  void mnuHelp_Click();
  void mnuSubmitList_Click();
  void mnuAbout_Click();
  void gotoBVXweb_Click();

 private:
  InformationViewer& viewer_;
  const frmBVX& main_;
  Messages& messages_;
  const ProgramInfo& info_;
};

}  // namespace benevix
