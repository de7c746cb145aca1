#pragma once

#include <functional>
#include <string>

#include "controls/desk.h"
#include "core/codec.h"
#include "core/messages.h"
#include "core/settings_store.h"
#include "forms/frmDonRankg.h"
#include "forms/frmPersInfo.h"
#include "platform/environment.h"

namespace benevix {

// What opened the contact window; decides what happens after the details are saved.
enum class ContactCaller { None = 0, DonationEntry = 1, ContactOrganization = 3, Menu = 4 };

// The user's contact details, stored scrambled in the setting `UsrInfo`: for each field "dat", its
// index, its text and "^".
class ContactInformation {
 public:
  // Called after a save: nameSaved updates the donor names, saved resumes the caller's action.
  struct Callbacks {
    std::function<void(const std::string& fullName)> nameSaved;
    std::function<void(ContactCaller)> saved;
  };

  ContactInformation(frmPersInfo& window, frmDonRankg& ranking, Desk& desk, SettingsStore& settings,
                     const TextCodec& codec, Messages& messages, Environment& environment,
                     Callbacks callbacks)
      : window_(window),
        ranking_(ranking),
        desk_(desk),
        settings_(settings),
        codec_(codec),
        messages_(messages),
        environment_(environment),
        callbacks_(std::move(callbacks)) {}

  void Open(ContactCaller caller);

  // Fills the countries and the stored details. A damaged country list ends the program.
  void Form_Load();
  void Command1_Click(int index);
  void Combo1_Click();
  void Check1_MouseUp();
  // Also when the user closes the window.
  void Cancel();
  // Shows what follows from the fields: the country in the picker, and what is missing.
  void ShowWhatFollows();

  // The details for the session notice: joined by "," and scrambled.
  [[nodiscard]] std::string ForNotice() const;
  [[nodiscard]] bool TakesPartInRanking() const { return window_.Check1.value == 1; }

 private:
  void LoadCountryList();
  void Save();
  // Restores the stored details and keeps the window loaded, as other modules read its boxes.
  void Reload();

  frmPersInfo& window_;
  frmDonRankg& ranking_;
  Desk& desk_;
  SettingsStore& settings_;
  const TextCodec& codec_;
  Messages& messages_;
  Environment& environment_;
  Callbacks callbacks_;
  ContactCaller caller_ = ContactCaller::None;
};

// The text of `UsrInfo` before scrambling, and back. SplitContact stops at the first missing field
// and leaves the rest of the boxes unchanged.
std::string JoinContact(const frmPersInfo& window);
void SplitContact(const std::string& text, frmPersInfo& window);

}  // namespace benevix
