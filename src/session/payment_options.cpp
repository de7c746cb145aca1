#include "session/payment_options.h"

#include "base/number_text.h"

namespace benevix {

void PaymentOptions::AskOnce() {
  if (IsChosen()) return;
  desk_.Show(window_, Modality::Modeless, Attention::KeepsMainDisabled);
}

void PaymentOptions::Ask() {
  desk_.Show(window_);
}

void PaymentOptions::mnuChgPayMethod_Click() {
  main_.Command1.tag.clear();
  Ask();
}

void PaymentOptions::Option1_Click() {
  window_.Command1[0].enabled = true;
}

void PaymentOptions::Command1_Click(int index) {
  if (index == 0) {
    Continue();
  } else {
    callbacks_.showHelpPage("qhelp.html#Avoiding Credit Card Fees");
  }
}

void PaymentOptions::Continue() {
  window_.Command1[0].enabled = false;
  main_.mnuChgPayMethod.enabled = false;
  const int chosen = Chosen(window_.Option1);
  if (chosen >= 0) main_.Label4.caption = window_.Option1[chosen].caption + " Payment method ";
  main_.Label4.tag = "1";  // a method was chosen; only session scripts read it
  main_.Timer1.tag.clear();
  main_.Timer1.enabled = true;
  desk_.Hide(window_);
  if (Val(main_.Command1.tag) == 1) {
    main_.Command1.tag.clear();
    callbacks_.finalize();
  }
}

void PaymentOptions::Form_Unload() {
  main_.Command1.tag.clear();
}

}  // namespace benevix
