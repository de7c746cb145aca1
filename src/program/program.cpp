#include "program/program.h"

#include "base/runtime_error.h"
#include "session/gift_note.h"
#include "session/hints.h"
#include "session/new_session.h"

namespace benevix {

namespace {

Environment WithHttp(const Environment& from, HttpClient& http) {
  return {from.info,  from.registry, http,       from.boxes, from.waits,
          from.clock, from.random,   from.shell, from.files, from.printer};
}

}  // namespace

Program::Program(const Environment& environment, ListAhead list)
    : desk_(events_),
      requests_(environment.http, desk_, environment.waits, main_.CancelRequest),
      environment_(WithHttp(environment, requests_)),
      input_(desk_, events_),
      settings_(environment_.registry),
      messages_(environment_.boxes, environment_.info, run_),
      codec_(environment_.info.exeName),
      database_(main_, run_, settings_, environment_.files, environment_.info.Resource(kListFile),
                std::move(list)),
      budgetEntry_(main_, values_, desk_, messages_, [this] { paymentOptions_.AskOnce(); }),
      donationEntry_(main_, values_, rates_, desk_, messages_,
                     {forms_.Get<frmPersInfo>(), forms_.Get<frmPayOpt>(),
                      [this] { contact_.Open(ContactCaller::DonationEntry); }}),
      mainWindow_(main_, values_, budgetEntry_, donationEntry_),
      listView_(main_, values_, desk_, run_, [this] { yearToDate_.ShowYtd(); }),
      listTyping_(main_, database_, environment_.clock, listView_),
      listFilter_(main_, database_, desk_, [this](int row) { listView_.SelectByKeyboard(row); }),
      search_(forms_.Get<frmSrch>(), main_, database_,
              [this](int row) { listView_.Select(row, true); }),
      favorites_(main_, settings_, database_, listView_),
      editCommands_(main_, donationEntry_),
      distribution_(main_, values_, favorites_, donationEntry_, messages_),
      paymentOptions_(forms_.Get<frmPayOpt>(), main_, desk_,
                      {[this] { finalization_.Finalize(); },
                       [this](const std::string& page) { help_.ShowPage(page); }}),
      charges_(main_, forms_.Get<frmPayOpt>(), values_, rates_),
      preview_(main_, values_, donationEntry_),
      giftsPanel_(main_, listView_),
      journal_({main_, forms_.Get<frmPayOpt>(), values_}, desk_, database_, environment_.files,
               environment_.clock, environment_.info.Resource("session.journal"),
               [this](const std::string& reason) {
                 messages_.Show(
                     "The session cannot be kept for a restart of the program.\r\n" + reason,
                     BoxIcon::Critical);
               }),
      journalCommands_(main_, journal_, messages_),
      viewer_(forms_.Get<frmInfo>(), desk_, messages_, environment_),
      help_(viewer_, main_, messages_, environment_.info),
      wizard_(forms_.Get<frmWizard>(), main_, desk_, settings_, environment_.info, help_),
      server_(environment_, main_, rates_, run_),
      yearToDate_(environment_, server_, run_, main_, forms_.Get<frmYtdTag>(), desk_),
      news_(main_, viewer_, server_, messages_, environment_.info, [this] { DownloadUpdater(); }),
      downloads_(server_, {forms_.Get<frmWait>(), desk_, environment_.waits},
                 environment_.info.deployment),
      updater_(environment_, downloads_, messages_),
      listUpdate_(environment_, server_, messages_, run_, downloads_),
      listAtStart_(listUpdate_, database_, environment_, messages_, run_),
      listUpdateCommand_(listUpdate_, main_, values_, messages_, database_, favorites_,
                         environment_.files),
      contacts_(server_, messages_),
      information_(main_, viewer_, {forms_.Get<frmWait>(), desk_, environment_.waits}, server_,
                   contacts_, messages_,
                   [this](const std::string& recipient) { messenger_.WriteTo(recipient); }),
      translation_({forms_.Get<frmPrefsTranslate>(), forms_.Get<frmInfo>(), main_}, viewer_, desk_,
                   settings_, environment_),
      otherNames_(environment_.files, environment_.info.Resource("othernames.dat")),
      donorName_(main_, desk_, otherNames_),
      contact_(forms_.Get<frmPersInfo>(), forms_.Get<frmDonRankg>(), desk_, settings_, codec_,
               messages_, environment_,
               {[this](const std::string& name) { SetOwnName(main_, name); },
                [this](ContactCaller caller) { ContactSaved(caller); }}),
      ranking_(forms_.Get<frmDonRankg>(), desk_, settings_, codec_, messages_),
      messenger_(forms_.Get<frmMail>(), desk_, server_, messages_, environment_.info,
                 {forms_.Get<frmPersInfo>(), main_,
                  [this] { contact_.Open(ContactCaller::ContactOrganization); },
                  [this](const std::string& from, const std::string& to, const std::string& subject,
                         const std::string& message) {
                    return printing_.PrintMessage(from, to, subject, message);
                  }}),
      tellAFriend_(forms_.Get<frmTellAFriend>(), forms_.Get<frmPersInfo>(), desk_, settings_,
                   codec_, server_, messages_),
      lastSession_(main_, values_, rates_, desk_, settings_, database_, messages_, environment_,
                   [this] { NewSession(); }),
      notice_(main_, charges_, server_, contact_, ranking_, lastSession_, journal_, environment_),
      history_(environment_, messages_, viewer_, main_),
      paymentStates_(environment_, messages_, forms_.Get<frmInfo>().wb1),
      finalization_(main_, values_, desk_, paymentOptions_, notice_, viewer_, history_, journal_,
                    messages_, environment_.info.deployment),
      printing_(environment_, forms_.Get<frmWait>(), desk_, main_, finalization_),
      pastGifts_(main_, environment_, paymentStates_),
      givingReport_(forms_.Get<frmReport>(), desk_, environment_, settings_, paymentStates_,
                    {forms_.Get<frmPersInfo>(),
                     [this](const std::string& date, const std::vector<OptionsRecord>& gifts) {
                       const bool given = lastSession_.GiveAgain(date, gifts);
                       if (given) journal_.NameStep("Recalled the session of " + date);
                       return given;
                     },
                     [this] { pastGifts_.Read(); }}) {
  forms_.ForEach([this](auto& form) { desk_.Add(form); });
  ConnectEvents();
  input_.derive = [this] {
    journal_.AfterEvent();
    listFilter_.AfterEvent();
    charges_.Show();
    giftsPanel_.Show();
    main_.Offline.visible = !run_.ServerOK;
    viewer_.ShowWays();
    paymentStates_.AfterEvent();
    contact_.ShowWhatFollows();
    tellAFriend_.ShowMessage();
    preview_.Show();
    pastGifts_.Show();
    journalCommands_.Show();
    requests_.EndAction();
  };
  history_.onWritten = [this](const std::string& records) {
    pastGifts_.Add(records);
    givingReport_.Refresh();
  };
  paymentStates_.onNoted = [this] {
    pastGifts_.Read();
    givingReport_.Refresh();
  };
  main_.ListView1.noteOf = [this](int row) { return GiftNote(main_.ListView1, row); };
  input_.cancelRequest = [this] { requests_.Cancel(); };
  input_.onError = [this](const RuntimeError& error) {
    messages_.Show(error.what(), BoxIcon::Critical);
  };
}

void Program::NewSession() {
  ResetSession(main_, values_, desk_);
  yearToDate_.Reset();
  database_.LoadOrganizationList();
  database_.BuildCountriesMenu();
  favorites_.LoadFavoritesMenu();
  ShowHint(main_, hint::kTypeBudget);
}

void Program::ContactSaved(ContactCaller caller) {
  if (caller == ContactCaller::DonationEntry) desk_.SetFocus(main_.Text1[money_box::kDonation]);
  if (caller == ContactCaller::ContactOrganization) messenger_.Show();
}

void Program::DownloadUpdater() {
  if (updater_.Download()) desk_.End();
}

}  // namespace benevix
