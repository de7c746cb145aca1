// How the program starts and ends: the order in which its modules are called.

#include <cmath>

#include "base/runtime_error.h"
#include "base/web_address.h"
#include "help/quick_help.h"
#include "program/own_settings.h"
#include "program/program.h"
#include "server/connection.h"
#include "session/hints.h"

namespace benevix {

void Program::Main() {
  input_.Enter([this] {
    UpdateOwnSettings(settings_, environment_);
    desk_.Show(forms_.Get<frmSplash>());
  });
}

void Program::frmSplash_Load() {
  frmSplash& splash = forms_.Get<frmSplash>();
  splash.top = static_cast<int>(std::lround(environment_.info.screenHeight / 3.5));
  splash.left = static_cast<int>(std::lround(environment_.info.screenWidth / 3.5));
  const Deployment& deployment = environment_.info.deployment;
  const bool server = IsProtected(deployment.serverBase);
  const bool payment = IsProtected(deployment.paymentBase);
  splash.NotProtected.visible = !server || !payment;
  splash.NotProtected.caption = "Not protected: the address of " +
                                std::string(server    ? "the payment page"
                                            : payment ? "the server"
                                                      : "server and payment page") +
                                " is not https.\r\nOthers on the way can read what is sent.";
}

void Program::Image2_Click(int index) {
  if (index == 1) desk_.End();
  frmSplash& splash = forms_.Get<frmSplash>();
  splash.mousePointer = MousePointer::Hourglass;
  desk_.Show(main_);
  news_.LoadNews();
  if (main_.mnuWiz.checked) wizard_.Show();
  desk_.Unload(splash);
  TellUnrecorded();
}

void Program::TellUnrecorded() {
  const std::optional<SentNote> note = journal_.Unrecorded();
  if (!note) return;
  if (!history_.Holds(note->transactionId)) journalCommands_.TellUnrecorded(*note);
  journal_.ForgetUnrecorded();
}

void Program::frmBVX_Load() {
  try {
    LoadMainWindow();
  } catch (const RuntimeError&) {
    messages_.Show("Unrecoverable Error. Quiting", BoxIcon::Critical);
    desk_.End();
  }
}

void Program::TakeFolder() {
  try {
    folderLock_ = environment_.files.Lock(environment_.info.folder, {});
    run_.HoldsFolder = folderLock_ != nullptr;
  } catch (const RuntimeError&) {
    run_.HoldsFolder = true;  // where nothing can be locked, one copy still works as ever
  }
}

void Program::LoadMainWindow() {
  TakeFolder();
  const FilePath& folder = environment_.info.folder;
  for (const FilePath& own : {folder, folder / "Resources"}) {
    environment_.files.RemoveLeftovers(own);
  }
  main_.Option3[fee_option::kAdd].backColor = colors::kSand;
  main_.Option3[fee_option::kDeduct].backColor = colors::kLightSand;
  ApplyConnectionSettings(settings_, main_);
  if (server_.CheckServerStatus()) {
    server_.LoadFeeRates();
    yearToDate_.DownloadYtd();
    listAtStart_.Update();
  }
  listAtStart_.Load();
  ShowHint(main_, hint::kTypeBudget);
  frmPersInfo& contact = forms_.Get<frmPersInfo>();
  desk_.Load(contact);
  SetOwnName(main_, contact.Text1[contact_field::kFullName].text);
  otherNames_.LoadOtherNames(main_.Combo1);
  run_.PlatformCode = GetPlatformCode(environment_.info.platformId);
  main_.Label4.left = frmBVX::kWidth;  // the credit line comes in from the right
  BuildQuickHelpMenu(environment_.files, environment_.info.Resource("qhelp.html"), main_.qhelp1);
  wizard_.ReadShowAtStart();
  favorites_.LoadFavoritesMenu();
  database_.BuildCountriesMenu();
  journal_.Open(run_.HoldsFolder);
  pastGifts_.Read();
}

void Program::frmBVX_Unload() {
  yearToDate_.RemoveYtd();
  desk_.End();
}

void Program::Finish() {
  history_.WritePending();
  if (history_.IsWritten()) journal_.Recorded();
}

}  // namespace benevix
