#include "session/hints.h"

namespace benevix {

void ShowHint(frmBVX& main, int step) {
  const std::string enterDonation =
      "enter the donation as " + main.Label3.caption + " in the Donation box and press <Enter> ";
  std::string& line = main.Label6.caption;
  switch (step) {
    case hint::kPreferences:
      line = "Choose your preferences: Send Method, Donor Name, Request Certificate, etc";
      break;
    case hint::kAnonymous:
      line = enterDonation;
      break;
    case hint::kMyName:
      line = "Verify your name shows correctly, then " + enterDonation;
      break;
    case hint::kOtherName:
      line = "Enter a name for this donor, then " + enterDonation;
      break;
    case hint::kSelectFirst:
      line = "Select from the list an organization to donate to.";
      break;
    case hint::kContinue:
      line = "Press the Continue button to finalize this session.";
      break;
    case hint::kSelectAnother:
      line = "Select from the list another organization to donate to.";
      break;
    case hint::kFinalized:
      line =
          "To start over select New Session from the File menu or press Continue to repeat this "
          "session";
      break;
    case hint::kTypeBudget:
      line = "Type a Dollar amount for your Budget (US$) on the Budget box + <Enter>";
      break;
    case hint::kTypeAmount:
      line =
          "So high a percentage never fits with its fees: choose Preferences, Donation field is, "
          "Currency and type an amount";
      break;
    default:
      break;
  }
}

}  // namespace benevix
