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
      server_(surroundings_, windows_.main, run_),
      database_(windows_.main, run_, settings_, surroundings_.info.Resource("sharedb.dat")),
      otherNames_(surroundings_.files, surroundings_.info.Resource("othernames.dat")),
      listUpdate_(surroundings_, Fetch(), messages_, run_, windows_.wait, desk_),
      budgetEntry_(windows_.main, values_, desk_, messages_, [this] { paymentOptions_.AskOnce(); }),
      donationEntry_(windows_.main, values_, rates_, desk_, messages_,
                     {windows_.contact, windows_.payment,
                      [this] { contact_.Open(ContactCaller::DonationEntry); }}),
      mainWindow_(windows_.main, budgetEntry_, donationEntry_),
      listView_(windows_.main, desk_, run_, [this] { yearToDate_.ShowYtd(); }),
      listTyping_(windows_.main, database_, surroundings_.clock, listView_),
      donorName_(windows_.main, desk_, otherNames_),
      favorites_(windows_.main, settings_, database_, listView_),
      editCommands_(windows_.main, donationEntry_),
      distribution_(windows_.main, values_, favorites_, donationEntry_, messages_),
      paymentOptions_(windows_.payment, windows_.main, desk_,
                      {[this] {
                         std::string heading;
                         finalization_.Finalize(heading);
                       },
                       [this](const std::string& page) { help_.ShowPage(page); }}),
      charges_(windows_.main, windows_.payment, values_, rates_),
      history_(surroundings_, messages_, desk_, windows_.info),
      finalization_({windows_.main, windows_.payment, windows_.contact, windows_.info}, values_,
                    rates_, run_, desk_, server_, settings_, codec_, messages_, history_,
                    surroundings_),
      yearToDate_(surroundings_, Fetch(), run_, windows_.main, windows_.ytd, desk_),
      lastSession_(windows_.main, values_, desk_, settings_, database_, surroundings_.info),
      printing_(surroundings_, windows_.wait, desk_, windows_.main, finalization_),
      help_(windows_.info, windows_.main, desk_, messages_, surroundings_.info),
      news_(windows_.main, windows_.info, desk_, server_, messages_, surroundings_.info,
            [this] { DownloadUpdater(); }),
      informationViewer_(windows_.info, windows_.main),
      contact_(windows_.contact, windows_.ranking, desk_, settings_, codec_, messages_,
               surroundings_,
               {[this](const std::string& name) { PutOwnName(windows_.main, name); },
                [this](ContactCaller caller) { ContactSaved(caller); }}),
      ranking_(windows_.ranking, desk_, settings_, codec_, messages_),
      contacts_(server_, messages_),
      information_({windows_.main, windows_.info, windows_.wait}, desk_, server_, contacts_,
                   messages_, run_, surroundings_.waits,
                   [this](const std::string& recipient) { messenger_.WriteTo(recipient); }),
      messenger_(windows_.mail, desk_, server_, messages_, surroundings_.info,
                 {windows_.contact, windows_.main,
                  [this] { contact_.Open(ContactCaller::ContactOrganization); },
                  [this](const std::string& from, const std::string& to, const std::string& subject,
                         const std::string& message) {
                    printing_.PrintMessage(from, to, subject, message);
                  }}),
      tellAFriend_(windows_.tellAFriend, desk_, settings_, codec_, server_, messages_,
                   surroundings_.info),
      translation_({windows_.translate, windows_.info, windows_.main}, desk_, settings_,
                   surroundings_),
      wizard_(windows_.wizard, windows_.main, desk_, surroundings_.info,
              [this](const std::string& page) { help_.ShowPage(page); }),
      search_(windows_.search, windows_.main, database_,
              [this](int row) { listView_.Select(row, true); }),
      listUpdateCommand_(listUpdate_, values_, messages_, [this] { NewSession(); }),
      startUp_(windows_.splash, windows_.main, desk_, settings_, messages_, run_, surroundings_,
               StartUpSteps()) {
  desk_.Add("frmBVX", windows_.main);
  desk_.Add("frmSplash", windows_.splash);
  desk_.Add("frmPayOpt", windows_.payment);
  desk_.Add("frmInfo", windows_.info);
  desk_.Add("frmPersInfo", windows_.contact);
  desk_.Add("frmDonRankg", windows_.ranking);
  desk_.Add("frmWait", windows_.wait);
  desk_.Add("frmWizard", windows_.wizard);
  desk_.Add("frmYtdTag", windows_.ytd);
  desk_.Add("frmMail", windows_.mail);
  desk_.Add("frmTellAFriend", windows_.tellAFriend);
  desk_.Add("frmPrefsTranslate", windows_.translate);
  desk_.Add("frmSrch", windows_.search);
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
    ShowHint(windows_.main, hint::kTypeBudget);
  };
  steps.putOwnName = [this] {
    desk_.Load(windows_.contact);
    PutOwnName(windows_.main, windows_.contact.Text1[contact_field::kFullName].text);
  };
  steps.loadOtherNames = [this] { otherNames_.LoadOtherNames(windows_.main.Combo1); };
  steps.buildQuickHelp = [this] {
    BuildQuickHelpMenu(surroundings_.files, surroundings_.info.Resource("qhelp.html"),
                       windows_.main.qhelp1);
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
  ResetSession(windows_.main, values_, desk_);
  database_.LoadOrganizationList();
  database_.BuildCountriesMenu();
  favorites_.LoadFavoritesMenu();
  ShowHint(windows_.main, hint::kTypeBudget);
}

void Program::ContactSaved(ContactCaller caller) {
  if (caller == ContactCaller::DonationEntry) desk_.SetFocus(windows_.main.Text1[2]);
  if (caller == ContactCaller::ContactOrganization) messenger_.Show();
}

void Program::DownloadUpdater() {
  if (listUpdate_.DownloadUpdater()) desk_.End();
}

}  // namespace benevix
