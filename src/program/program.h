#pragma once

#include <memory>

#include "controls/desk.h"
#include "controls/input.h"
#include "core/codec.h"
#include "core/messages.h"
#include "core/request_notice.h"
#include "core/run_values.h"
#include "core/settings_store.h"
#include "database/organization_database.h"
#include "forms/forms.h"
#include "giving/giving_report.h"
#include "giving/past_gifts.h"
#include "help/help.h"
#include "help/information_viewer.h"
#include "help/wizard.h"
#include "journal/journal.h"
#include "journal/journal_commands.h"
#include "people/contact_information.h"
#include "people/donor_name.h"
#include "people/donors_ranking.h"
#include "people/messenger.h"
#include "people/other_names.h"
#include "people/tell_a_friend.h"
#include "platform/environment.h"
#include "records/finalization.h"
#include "records/history.h"
#include "records/last_session.h"
#include "records/payment_states.h"
#include "records/printing.h"
#include "server/downloads.h"
#include "server/list_at_start.h"
#include "server/list_update.h"
#include "server/list_update_command.h"
#include "server/news.h"
#include "server/organization_contacts.h"
#include "server/organization_information.h"
#include "server/server_files.h"
#include "server/translation.h"
#include "server/updater.h"
#include "server/year_to_date.h"
#include "session/budget_entry.h"
#include "session/charges.h"
#include "session/distribution.h"
#include "session/donation_entry.h"
#include "session/edit_commands.h"
#include "session/favorites.h"
#include "session/gifts_panel.h"
#include "session/list_filter.h"
#include "session/list_typing.h"
#include "session/list_view_events.h"
#include "session/main_window.h"
#include "session/payment_options.h"
#include "session/preview.h"
#include "session/search.h"

namespace benevix {

// One run of the program: builds every module once and hands each exactly what it uses.
class Program {
 public:
  // The list is the one that was loaded ahead of the program, if any was.
  explicit Program(const Environment& environment, ListAhead list = {});
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() = default;

  // The entry routine; shows the splash window.
  void Main();
  // Resets the session and reloads the list. Raises RuntimeError if the list cannot be loaded.
  void NewSession();
  // Writes what is still unwritten when the program has ended.
  void Finish();

  [[nodiscard]] Desk& TheDesk() { return desk_; }
  [[nodiscard]] Input& TheInput() { return input_; }
  [[nodiscard]] Forms& TheForms() { return forms_; }

  // For tests and session scripts, which use values and routines by name.
  [[nodiscard]] const SessionValues& Values() const { return values_; }
  [[nodiscard]] const FeeRates& Rates() const { return rates_; }
  [[nodiscard]] const RunValues& Run() const { return run_; }
  [[nodiscard]] const TextCodec& Codec() const { return codec_; }
  [[nodiscard]] Messages& TheMessages() { return messages_; }
  [[nodiscard]] OrganizationContacts& Contacts() { return contacts_; }
  [[nodiscard]] const Environment& TheEnvironment() const { return environment_; }

 private:
  // Start-up and end of the program (start_up.cpp).
  void frmSplash_Load();
  void Image2_Click(int index);  // of the splash: 0 enters, 1 leaves
  void frmBVX_Load();
  // Against other copies of the program that run at the same time.
  void TakeFolder();
  void LoadMainWindow();
  // Of a session that the last run sent without recording it.
  void TellUnrecorded();
  void frmBVX_Unload();

  void ContactSaved(ContactCaller caller);
  void DownloadUpdater();

  // The table of events and their handlers, by window (event_table.cpp).
  void ConnectEvents();
  void ConnectSplash();
  void ConnectMainWindow();
  void ConnectSessionMenus();
  void ConnectOtherMenus();
  void ConnectReport();
  void ConnectPayment();
  void ConnectViewer();
  void ConnectContact();
  void ConnectSmallWindows();

  EventTable events_;
  Forms forms_;
  frmBVX& main_ = forms_.Get<frmBVX>();
  Desk desk_;
  RequestNotice requests_;
  Environment environment_;  // whose requests go through that
  Input input_;
  RunValues run_;
  std::unique_ptr<FolderLock> folderLock_;
  SessionValues values_;
  FeeRates rates_;

  // The modules, layer by layer. What a module needs from a later one it gets as a callback.
  SettingsStore settings_;
  Messages messages_;
  TextCodec codec_;

  OrganizationDatabase database_;

  BudgetEntry budgetEntry_;
  DonationEntry donationEntry_;
  MainWindow mainWindow_;
  ListViewEvents listView_;
  ListTyping listTyping_;
  ListFilter listFilter_;
  Search search_;
  Favorites favorites_;
  EditCommands editCommands_;
  Distribution distribution_;
  PaymentOptions paymentOptions_;
  Charges charges_;
  Preview preview_;
  GiftsPanel giftsPanel_;

  Journal journal_;
  JournalCommands journalCommands_;

  InformationViewer viewer_;
  Help help_;
  Wizard wizard_;

  ServerFiles server_;
  YearToDate yearToDate_;
  News news_;
  Downloads downloads_;
  Updater updater_;
  ListUpdate listUpdate_;
  ListAtStart listAtStart_;
  ListUpdateCommand listUpdateCommand_;
  OrganizationContacts contacts_;
  OrganizationInformation information_;
  Translation translation_;

  OtherNames otherNames_;
  DonorName donorName_;
  ContactInformation contact_;
  DonorsRanking ranking_;
  Messenger messenger_;
  TellAFriend tellAFriend_;

  LastSession lastSession_;
  SessionNotice notice_;
  History history_;
  PaymentStates paymentStates_;
  Finalization finalization_;
  Printing printing_;

  PastGifts pastGifts_;
  GivingReport givingReport_;
};

}  // namespace benevix
