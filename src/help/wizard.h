#pragma once

#include <string>

#include "controls/desk.h"
#include "core/settings_store.h"
#include "forms/frmBVX.h"
#include "forms/frmWizard.h"
#include "help/help.h"
#include "platform/program_info.h"

namespace benevix {

// The start-up wizard: a welcome page, the fee mode, the donation mode. A choice takes effect when
// Continue is pressed on its page.
class Wizard {
 public:
  Wizard(frmWizard& window, frmBVX& main, Desk& desk, SettingsStore& settings,
         const ProgramInfo& info, Help& help)
      : window_(window), main_(main), desk_(desk), settings_(settings), info_(info), help_(help) {}

  void Show();

  // Checks "Start with the Wizard" in the menu if the setting `ShowWiz` is true or empty; a setting
  // that is no truth value counts as false.
  void ReadShowAtStart();
  // Toggles and stores the check mark; checking it also shows the wizard.
  void mnuWiz_Click();

  void Form_Load();
  // Choosing an answer enables Continue.
  void Option1_MouseUp(int index);
  void Command1_Click();
  void Command2_Click();
  // Back to the page before, whose answer is the one in force.
  void Command3_Click();

 private:
  enum class Page { Welcome, Fees, DonationMode };
  struct Answer {
    std::string caption, meaning;
  };

  void ShowPage(Page page);
  void ShowQuestion(const std::string& question, const Answer& first, const Answer& second);

  frmWizard& window_;
  frmBVX& main_;
  Desk& desk_;
  SettingsStore& settings_;
  const ProgramInfo& info_;
  Help& help_;
  Page page_ = Page::Welcome;
};

}  // namespace benevix
