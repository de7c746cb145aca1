#pragma once

#include <functional>
#include <string>

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "forms/frmWizard.h"
#include "platform/program_info.h"

namespace benevix {

// The start-up wizard: welcome, the fee mode, the donation mode. A choice takes effect with the
// Continue of its page.
class Wizard {
 public:
  // `showHelpPage` shows a page of the Resources folder.
  Wizard(frmWizard& window, frmBVX& main, Desk& desk, const ProgramInfo& info,
         std::function<void(const std::string& page)> showHelpPage)
      : window_(window),
        main_(main),
        desk_(desk),
        info_(info),
        showHelpPage_(std::move(showHelpPage)) {}

  void Show();
  void Form_Load();
  // An answer opens the way on.
  void Option1_MouseUp(int index);
  void Command1_Click();
  void Command2_Click();

 private:
  enum class Page { Welcome, Fees, DonationMode };

  void ShowQuestion(Page page, const std::string& question, const std::string& first,
                    const std::string& second);

  frmWizard& window_;
  frmBVX& main_;
  Desk& desk_;
  const ProgramInfo& info_;
  std::function<void(const std::string& page)> showHelpPage_;
  Page page_ = Page::Welcome;
};

}  // namespace benevix
