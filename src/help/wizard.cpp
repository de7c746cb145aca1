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
  window_.caption = info_.deployment.product + " Options ";
  ShowPage(Page::Welcome);
}

void Wizard::ShowPage(Page page) {
  page_ = page;
  const bool isQuestion = page != Page::Welcome;
  window_.Step.caption = "Step " + std::to_string(static_cast<int>(page) + 1) + " of 3";
  window_.Command3.visible = isQuestion;
  window_.Command1.enabled = !isQuestion;
  for (OptionButton& option : window_.Option1) option.visible = isQuestion;
  for (Label& meaning : window_.Meaning) meaning.visible = isQuestion;
  // As in the menu, the fee mode is fixed after the first donation.
  window_.Closed.visible = page == Page::Fees && !main_.mnuAddFees.enabled;
  switch (page) {
    case Page::Welcome:
      window_.Label1.caption =
          "Welcome to " + info_.deployment.product + "\r\nThis wizard will help you get started";
      return desk_.SetFocus(window_.Command1);
    case Page::Fees:
      return ShowQuestion(
          "Choose the method you want Fees to be calculated",
          {"Add to my Budget", "The Budget is given whole; the fees are paid on top of it."},
          {"Deduct from my Budget", "The fees come out of the Budget; less of it is given."});
    case Page::DonationMode:
      return ShowQuestion(
          "The amounts you type as Donation are:", {"Currency", "10 gives 10.00 dollars."},
          {"% of Balance", "10 gives a tenth of what is left of the Budget."});
  }
}

void Wizard::ShowQuestion(const std::string& question, const Answer& first, const Answer& second) {
  window_.Label1.caption = question;
  for (int i = 0; const Answer* const answer : {&first, &second}) {
    window_.Option1[i].caption = answer->caption;
    window_.Option1[i].value = false;
    window_.Meaning[i].caption = answer->meaning;
    ++i;
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
      return ShowPage(Page::Fees);
    case Page::Fees:
      if (main_.mnuAddFees.enabled) SetFeeMode(main_, first ? FeeMode::Add : FeeMode::Deduct);
      return ShowPage(Page::DonationMode);
    case Page::DonationMode:
      SetDonationMode(main_, first ? DonationMode::Currency : DonationMode::Percentage);
      return desk_.Unload(window_);
  }
}

void Wizard::Command3_Click() {
  if (page_ == Page::Fees) return ShowPage(Page::Welcome);
  ShowPage(Page::Fees);
  const bool adds = main_.mnuAddFees.checked;
  window_.Option1[0].value = adds;
  window_.Option1[1].value = !adds;
  window_.Command1.enabled = true;
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
