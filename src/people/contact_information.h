#pragma once

#include <functional>
#include <string>

#include "controls/desk.h"
#include "core/codec.h"
#include "core/messages.h"
#include "core/settings_store.h"
#include "forms/frmDonRankg.h"
#include "forms/frmPersInfo.h"
#include "platform/surroundings.h"

namespace benevix {

// What opened the contact window, and so what follows when the details are saved.
enum class ContactCaller { None = 0, DonationEntry = 1, ContactOrganization = 3, Menu = 4 };

// The user's contact details, kept scrambled in the setting `UsrInfo`: for each field "dat", its
// index, its text and "^".
class ContactInformation {
 public:
  // What follows a save: the own name goes to the donor names, the caller goes on.
  struct Follow {
    std::function<void(const std::string& fullName)> nameSaved;
    std::function<void(ContactCaller)> saved;
  };

  ContactInformation(frmPersInfo& window, frmDonRankg& ranking, Desk& desk, SettingsStore& settings,
                     const TextCodec& codec, Messages& messages, Surroundings& surroundings,
                     Follow follow)
      : window_(window),
        ranking_(ranking),
        desk_(desk),
        settings_(settings),
        codec_(codec),
        messages_(messages),
        surroundings_(surroundings),
        follow_(std::move(follow)) {}

  void Open(ContactCaller caller);

  // Fills the countries and the stored details. A damaged country list ends the program.
  void Form_Load();
  void Command1_Click(int index);
  void Combo1_Click();
  void Check1_MouseUp();
  // The user closes the window: as Cancel.
  void Cancel();

  // The details as a session's notice carries them: joined by "," and scrambled.
  [[nodiscard]] std::string ForNotice() const;
  [[nodiscard]] bool TakesPartInRanking() const { return window_.Check1.value == 1; }

 private:
  void LoadCountryList();
  void Save();
  // Back to what is stored: the boxes stay readable for other rooms.
  void Reload();

  frmPersInfo& window_;
  frmDonRankg& ranking_;
  Desk& desk_;
  SettingsStore& settings_;
  const TextCodec& codec_;
  Messages& messages_;
  Surroundings& surroundings_;
  Follow follow_;
  ContactCaller caller_ = ContactCaller::None;
};

// The text that `UsrInfo` holds before it is scrambled, and back. A field that is not there reads
// as empty.
std::string JoinContact(const frmPersInfo& window);
void SplitContact(const std::string& text, frmPersInfo& window);

}  // namespace benevix
