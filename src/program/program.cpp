#include "program/program.h"

#include "base/runtime_error.h"
#include "help/quick_help.h"
#include "session/hints.h"
#include "session/new_session.h"

namespace benevix {

Program::Program(Surroundings surroundings)
    : surroundings_(std::move(surroundings)),
      desk_(events_),
      input_(desk_, events_),
      settings_(surroundings_.registry),
      messages_(surroundings_.boxes, surroundings_.info, run_),
      codec_(surroundings_.info.exeName),
      server_(surroundings_, forms_.Get<frmBVX>(), run_),
      database_(forms_.Get<frmBVX>(), run_, settings_, surroundings_.info.Resource("sharedb.dat")),
      otherNames_(surroundings_.files, surroundings_.info.Resource("othernames.dat")),
      listUpdate_(surroundings_, Fetch(), messages_, run_, forms_.Get<frmWait>(), desk_),
      budgetEntry_(forms_.Get<frmBVX>(), values_, desk_, messages_,
                   [this] { paymentOptions_.AskOnce(); }),
      donationEntry_(forms_.Get<frmBVX>(), values_, rates_, desk_, messages_,
                     {forms_.Get<frmPersInfo>(), forms_.Get<frmPayOpt>(),
                      [this] { contact_.Open(ContactCaller::DonationEntry); }}),
      mainWindow_(forms_.Get<frmBVX>(), budgetEntry_, donationEntry_),
      listView_(forms_.Get<frmBVX>(), desk_, run_, [this] { yearToDate_.ShowYtd(); }),
      listTyping_(forms_.Get<frmBVX>(), database_, surroundings_.clock, listView_),
      donorName_(forms_.Get<frmBVX>(), desk_, otherNames_),
      favorites_(forms_.Get<frmBVX>(), settings_, database_, listView_),
      editCommands_(forms_.Get<frmBVX>(), donationEntry_),
      distribution_(forms_.Get<frmBVX>(), values_, favorites_, donationEntry_, messages_),
      paymentOptions_(forms_.Get<frmPayOpt>(), forms_.Get<frmBVX>(), desk_,
                      {[this] {
                         std::string heading;
                         finalization_.Finalize(heading);
                       },
                       [this](const std::string& page) { help_.ShowPage(page); }}),
      charges_(forms_.Get<frmBVX>(), forms_.Get<frmPayOpt>(), values_, rates_),
      history_(surroundings_, messages_, desk_, forms_.Get<frmInfo>()),
      finalization_({forms_.Get<frmBVX>(), forms_.Get<frmPayOpt>(), forms_.Get<frmPersInfo>(),
                     forms_.Get<frmInfo>()},
                    values_, rates_, run_, desk_, server_, settings_, codec_, messages_, history_,
                    surroundings_),
      yearToDate_(surroundings_, Fetch(), run_, forms_.Get<frmBVX>(), forms_.Get<frmYtdTag>(),
                  desk_),
      lastSession_(forms_.Get<frmBVX>(), values_, desk_, settings_, database_, surroundings_.info),
      printing_(surroundings_, forms_.Get<frmWait>(), desk_, forms_.Get<frmBVX>(), finalization_),
      help_(forms_.Get<frmInfo>(), forms_.Get<frmBVX>(), desk_, messages_, surroundings_.info),
      news_(forms_.Get<frmBVX>(), forms_.Get<frmInfo>(), desk_, server_, messages_,
            surroundings_.info, [this] { DownloadUpdater(); }),
      informationViewer_(forms_.Get<frmInfo>(), forms_.Get<frmBVX>()),
      contact_(forms_.Get<frmPersInfo>(), forms_.Get<frmDonRankg>(), desk_, settings_, codec_,
               messages_, surroundings_,
               {[this](const std::string& name) { PutOwnName(forms_.Get<frmBVX>(), name); },
                [this](ContactCaller caller) { ContactSaved(caller); }}),
      ranking_(forms_.Get<frmDonRankg>(), desk_, settings_, codec_, messages_),
      contacts_(server_, messages_),
      information_({forms_.Get<frmBVX>(), forms_.Get<frmInfo>(), forms_.Get<frmWait>()}, desk_,
                   server_, contacts_, messages_, run_, surroundings_.waits,
                   [this](const std::string& recipient) { messenger_.WriteTo(recipient); }),
      messenger_(forms_.Get<frmMail>(), desk_, server_, messages_, surroundings_.info,
                 {forms_.Get<frmPersInfo>(), forms_.Get<frmBVX>(),
                  [this] { contact_.Open(ContactCaller::ContactOrganization); },
                  [this](const std::string& from, const std::string& to, const std::string& subject,
                         const std::string& message) {
                    printing_.PrintMessage(from, to, subject, message);
                  }}),
      tellAFriend_(forms_.Get<frmTellAFriend>(), desk_, settings_, codec_, server_, messages_,
                   surroundings_.info),
      translation_({forms_.Get<frmPrefsTranslate>(), forms_.Get<frmInfo>(), forms_.Get<frmBVX>()},
                   desk_, settings_, surroundings_),
      wizard_(forms_.Get<frmWizard>(), forms_.Get<frmBVX>(), desk_, surroundings_.info,
              [this](const std::string& page) { help_.ShowPage(page); }),
      search_(forms_.Get<frmSrch>(), forms_.Get<frmBVX>(), database_,
              [this](int row) { listView_.Select(row, true); }),
      listUpdateCommand_(listUpdate_, values_, messages_, [this] { NewSession(); }),
      startUp_(forms_.Get<frmSplash>(), forms_.Get<frmBVX>(), desk_, settings_, messages_, run_,
               surroundings_, StartUpSteps()) {
  forms_.ForEach([this](auto& form) { desk_.Add(form); });
  ConnectEvents();
  input_.derive = [this] { charges_.Show(); };
  input_.onError = [this](const RuntimeError& error) {
    messages_.Show(error.what(), BoxIcon::Critical);
  };
}

void Program::Main() {
  input_.Enter([this] { startUp_.Main(); });
}

void Program::Finish() {
  history_.WritePending();
}

ServerFetch Program::Fetch() {
  return [this](const std::string& path, const HttpOptions& options) {
    return server_.FetchServerText(path, options);
  };
}

StartUp::Steps Program::StartUpSteps() {
  StartUp::Steps steps;
  steps.checkServerStatus = [this] { server_.CheckServerStatus(); };
  steps.loadFeeRates = [this] { server_.LoadFeeRates(rates_); };
  steps.downloadYtd = [this] { yearToDate_.DownloadYtd(); };
  steps.readListVersion = [this] { database_.ReadListVersion(); };
  steps.updateListSilently = [this] { UpdateListSilently(); };
  steps.loadOrganizationList = [this] {
    database_.LoadOrganizationList();
    ShowHint(forms_.Get<frmBVX>(), hint::kTypeBudget);
  };
  steps.putOwnName = [this] {
    desk_.Load(forms_.Get<frmPersInfo>());
    PutOwnName(forms_.Get<frmBVX>(),
               forms_.Get<frmPersInfo>().Text1[contact_field::kFullName].text);
  };
  steps.loadOtherNames = [this] { otherNames_.LoadOtherNames(forms_.Get<frmBVX>().Combo1); };
  steps.buildQuickHelp = [this] {
    BuildQuickHelpMenu(surroundings_.files, surroundings_.info.Resource("qhelp.html"),
                       forms_.Get<frmBVX>().qhelp1);
  };
  steps.loadFavoritesMenu = [this] { favorites_.LoadFavoritesMenu(); };
  steps.buildCountriesMenu = [this] { database_.BuildCountriesMenu(); };
  steps.loadNews = [this] { news_.LoadNews(); };
  steps.showWizard = [this] { wizard_.Show(); };
  steps.removeYtd = [this] { yearToDate_.RemoveYtd(); };
  return steps;
}

void Program::UpdateListSilently() {
  bool ready = false;
  listUpdate_.CheckListUpdate(true, true, ready);
  if (ready) listUpdate_.InstallList();
}

void Program::NewSession() {
  ResetSession(forms_.Get<frmBVX>(), values_, desk_);
  database_.LoadOrganizationList();
  database_.BuildCountriesMenu();
  favorites_.LoadFavoritesMenu();
  ShowHint(forms_.Get<frmBVX>(), hint::kTypeBudget);
}

void Program::ContactSaved(ContactCaller caller) {
  if (caller == ContactCaller::DonationEntry) desk_.SetFocus(forms_.Get<frmBVX>().Text1[2]);
  if (caller == ContactCaller::ContactOrganization) messenger_.Show();
}

void Program::DownloadUpdater() {
  if (listUpdate_.DownloadUpdater()) desk_.End();
}

}  // namespace benevix
