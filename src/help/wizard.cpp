#include "help/wizard.h"

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "session/modes.h"

namespace benevix {

void Wizard::Show() {
  desk_.Show(window_);
}

void Wizard::ReadShowAtStart() {
  const std::string stored = settings_.GetUserString("ShowWiz");
  try {
    main_.mnuWiz.checked = stored.empty() || TextToBoolean(stored);
  } catch (const RuntimeError&) {
    main_.mnuWiz.checked = false;
  }
}

void Wizard::mnuWiz_Click() {
  main_.mnuWiz.checked = !main_.mnuWiz.checked;
  settings_.SaveUserString("ShowWiz", main_.mnuWiz.checked ? "True" : "False");
  if (main_.mnuWiz.checked) Show();
}

void Wizard::Form_Load() {
  page_ = Page::Welcome;
  window_.caption = info_.deployment.product + " Options ";
  window_.Label1.caption =
      "Welcome to " + info_.deployment.product + "\r\nThis wizard will help you get started";
  for (OptionButton& option : window_.Option1) option.visible = false;
}

void Wizard::ShowQuestion(Page page, const std::string& question, const std::string& first,
                          const std::string& second) {
  page_ = page;
  // As in the menu, the fee mode is fixed after the first donation.
  window_.Closed.visible = page == Page::Fees && !main_.mnuAddFees.enabled;
  window_.Label1.caption = question;
  window_.Option1[0].caption = first;
  window_.Option1[1].caption = second;
  for (OptionButton& option : window_.Option1) {
    option.visible = true;
    option.value = false;
  }
  desk_.SetFocus(window_.Option1[0]);
}

void Wizard::Option1_MouseUp(int index) {
  if (window_.Option1[index].value) window_.Command1.enabled = true;
}

void Wizard::Command1_Click() {
  const bool first = window_.Option1[0].value;
  switch (page_) {
    case Page::Welcome:
      window_.Command1.enabled = false;
      return ShowQuestion(Page::Fees, "Choose the method you want Fees to be calculated",
                          "Add to my Budget", "Deduct from my Budget");
    case Page::Fees:
      window_.Command1.enabled = false;
      if (main_.mnuAddFees.enabled) SetFeeMode(main_, first ? FeeMode::Add : FeeMode::Deduct);
      return ShowQuestion(Page::DonationMode, "The amounts you type as Donation are:", "Currency",
                          "% of Balance");
    case Page::DonationMode:
      SetDonationMode(main_, first ? DonationMode::Currency : DonationMode::Percentage);
      return desk_.Unload(window_);
  }
}

void Wizard::Command2_Click() {
  switch (page_) {
    case Page::Welcome:
      return help_.ShowPage("qhelp.html");
    case Page::Fees:
      return help_.ShowPage("qhelp.html#Fees assessment");
    case Page::DonationMode:
      return help_.ShowPage("qhelp.html#Donation assesment");
  }
}

}  // namespace benevix
