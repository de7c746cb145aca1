// Which event goes to which handler.

#include "program/program.h"
#include "session/modes.h"

namespace benevix {
namespace {

// Wraps a handler that takes no arguments.
template <class F>
EventTable::Handler Plain(F handler) {
  return [handler](EventArgs&) { handler(); };
}

}  // namespace

void Program::ConnectEvents() {
  ConnectSplash();
  ConnectMainWindow();
  ConnectSessionMenus();
  ConnectOtherMenus();
  ConnectReport();
  ConnectPayment();
  ConnectViewer();
  ConnectContact();
  ConnectSmallWindows();
}

void Program::ConnectSplash() {
  frmSplash& splash = forms_.Get<frmSplash>();
  events_.On(splash, Event::Load, Plain([this] { frmSplash_Load(); }));
  events_.On(splash, Event::Close, Plain([this] { desk_.End(); }));
  events_.On(splash.Image1, Event::MouseMove,
             Plain([&splash] { splash.Shape2.borderColor = colors::kSplashBorder; }));
  events_.On(splash.Image2, Event::MouseMove,
             [&splash](int, EventArgs&) { splash.Shape2.borderColor = colors::kAccent; });
  events_.On(splash.Image2, Event::Click, [this](int index, EventArgs&) { Image2_Click(index); });
}

void Program::ConnectMainWindow() {
  events_.On(main_, Event::Load, Plain([this] { frmBVX_Load(); }));
  events_.On(main_, Event::Unload, Plain([this] { frmBVX_Unload(); }));

  events_.On(main_.Text1, Event::KeyPress,
             [](int, EventArgs& args) { MainWindow::Text1_KeyPress(args); });
  events_.On(main_.Text1, Event::Paste,
             [](int, EventArgs& args) { MainWindow::Text1_Paste(args); });
  events_.On(main_.Text1, Event::KeyUp,
             [this](int index, EventArgs& args) { mainWindow_.Text1_KeyUp(index, args); });
  events_.On(main_.Text1, Event::Change,
             [this](int index, EventArgs&) { mainWindow_.Text1_Change(index); });
  events_.On(main_.Text1, Event::GotFocus,
             [this](int index, EventArgs&) { mainWindow_.Text1_GotFocus(index); });
  events_.On(main_.Text1, Event::LostFocus,
             [this](int index, EventArgs&) { mainWindow_.Text1_LostFocus(index); });

  events_.On(main_.Option1, Event::Click,
             [this](int index, EventArgs&) { donorName_.Option1_Click(index); });
  events_.On(main_.Combo1, Event::KeyPress, RefuseComma);
  events_.On(main_.Combo1, Event::LostFocus, Plain([this] { donorName_.Combo1_LostFocus(); }));
  events_.On(main_.Option3, Event::Click, [this](int index, EventArgs&) {
    SetFeeMode(main_, index == fee_option::kAdd ? FeeMode::Add : FeeMode::Deduct);
  });

  events_.On(main_.ListView1, Event::ItemClick,
             [this](EventArgs& args) { listView_.ListView1_ItemClick(args); });
  events_.On(main_.ListView1, Event::KeyPress,
             [this](EventArgs& args) { listTyping_.ListView1_KeyPress(args); });
  events_.On(main_.ListView1, Event::KeyUp,
             [this](EventArgs& args) { listView_.ListView1_KeyUp(args); });
  events_.On(main_.Filter, Event::KeyUp,
             [this](EventArgs& args) { listFilter_.Filter_KeyUp(args); });
  events_.On(main_.Filter, Event::GotFocus, Plain([this] { listFilter_.Filter_GotFocus(); }));
  events_.On(main_.ShowAll, Event::Click, Plain([this] { listFilter_.ShowAll_Click(); }));
  events_.On(main_.GiftRows, Event::ItemClick, Plain([this] { giftsPanel_.GiftRows_ItemClick(); }));
  events_.On(main_.Command1, Event::Click, Plain([this] { finalization_.Command1_Click(); }));
  events_.On(main_.Command1, Event::MouseUp, [this](EventArgs& args) {
    if (args.button == MouseButton::Right) ++main_.mnuWhatis.popUps;
  });
  events_.On(main_.Label11, Event::MouseUp, [this](int index, EventArgs&) {
    if (index == 0) {
      listUpdateCommand_.Label11_MouseUp();
    } else {
      help_.mnuHelp_Click();
    }
  });
  // The lamp before a text takes the same click.
  const auto yearToDate = Plain([this] { yearToDate_.iLbl_Click(); });
  events_.On(main_.iLbl, Event::Click, yearToDate);
  events_.On(main_.Shape2, Event::Click, yearToDate);
  const auto news = Plain([this] { news_.Label12_Click(); });
  events_.On(main_.Label12, Event::Click, news);
  events_.On(main_.Shape5, Event::Click, news);
  events_.On(main_.Shape7, Event::Click, news);
  events_.On(main_.Timer1, Event::Tick, Plain([this] { mainWindow_.Timer1_Tick(); }));
  events_.On(main_.Timer2, Event::Tick, Plain([this] { mainWindow_.Timer2_Tick(); }));
}

// File, Edit, Favorites and Preferences.
void Program::ConnectSessionMenus() {
  const auto on = [this](const MenuItem& item, auto handler) {
    events_.On(item, Event::Click, Plain(handler));
  };
  on(main_.mnuNew, [this] { NewSession(); });
  on(main_.mnuPrntSession, [this] { printing_.mnuPrntSession_Click(); });
  on(main_.mnuHistory, [this] { history_.ShowHistory(); });
  on(main_.mnuPrtHistory, [this] { printing_.mnuPrtHistory_Click(); });
  on(main_.mnuUpdateList, [this] { listUpdateCommand_.Label11_MouseUp(); });
  on(main_.mnuExit, [this] { desk_.Unload(main_); });

  for (const MenuItem* item : {&main_.mnuCls, &main_.MMClear}) {
    on(*item, [this] { editCommands_.mnuCls_Click(); });
  }
  for (const MenuItem* item : {&main_.mnuCorrect, &main_.MMCorrect}) {
    on(*item, [this] { editCommands_.mnuCorrect_Click(); });
  }

  on(main_.mnuUndo, [this] { journalCommands_.mnuUndo_Click(); });
  on(main_.mnuRedo, [this] { journalCommands_.mnuRedo_Click(); });
  events_.On(main_.ContinueUnfinished, Event::Click,
             Plain([this] { journalCommands_.ContinueUnfinished_Click(); }));
  events_.On(main_.StartAfresh, Event::Click,
             Plain([this] { journalCommands_.StartAfresh_Click(); }));

  on(main_.mnuDistribFavs, [this] { distribution_.mnuDistribFavs_Click(); });
  on(main_.mnuFavAddTop, [this] { favorites_.Add(); });
  on(main_.mnuFavAdd, [this] { favorites_.Add(); });
  on(main_.mnuCancelRemove, [this] { favorites_.mnuCancelRemove_Click(); });
  on(main_.mnuFavsRemove, [this] { favorites_.mnuFavsRemove_Click(); });
  events_.On(main_.mnuFavs, Event::Click,
             [this](EventArgs& args) { favorites_.mnuFavs_Click(args.index); });

  on(main_.mnuChgPayMethod, [this] { paymentOptions_.mnuChgPayMethod_Click(); });
  on(main_.mnuRound, [this] { main_.mnuRound.checked = !main_.mnuRound.checked; });
  on(main_.mnuDirectCurr, [this] { SetDonationMode(main_, DonationMode::Currency); });
  on(main_.mnuPercentBal, [this] { SetDonationMode(main_, DonationMode::Percentage); });
  on(main_.mnuAddFees, [this] { SetFeeMode(main_, FeeMode::Add); });
  on(main_.mnuDeductFees, [this] { SetFeeMode(main_, FeeMode::Deduct); });
  on(main_.mnuSettings, [this] { contact_.Open(ContactCaller::Menu); });
  on(main_.mnuWiz, [this] { wizard_.mnuWiz_Click(); });
}

// Resources, Help and the pop-ups.
void Program::ConnectOtherMenus() {
  const auto on = [this](const MenuItem& item, auto handler) {
    events_.On(item, Event::Click, Plain(handler));
  };
  on(main_.mnuSearch, [this] { desk_.Show(forms_.Get<frmSrch>()); });
  events_.On(main_.lclist, Event::Click,
             [this](EventArgs& args) { listView_.lclist_Click(args.index); });
  on(main_.mnuShowWiz, [this] { wizard_.Show(); });
  for (const MenuItem* item : {&main_.mnuMoreInfo, &main_.MMTellMe}) {
    on(*item, [this] { information_.MoreInfo(); });
  }
  for (const MenuItem* item : {&main_.mnuContactThem, &main_.MMContactThem}) {
    on(*item, [this] { information_.Contact(); });
  }
  for (const MenuItem* item : {&main_.mnuGotheirWeb, &main_.MMGoWeb}) {
    on(*item, [this] { information_.WebSite(); });
  }
  on(main_.mnuRecallSession, [this] {
    journal_.NameStep("Recalled the session of " + lastSession_.mnuRecallSession_Click());
  });
  on(main_.mnuSendCopy, [this] { desk_.Show(forms_.Get<frmTellAFriend>()); });

  on(main_.mnuAbout, [this] { help_.mnuAbout_Click(); });
  on(main_.gotoBVXweb, [this] { help_.gotoBVXweb_Click(); });
  on(main_.mnuHelp, [this] { help_.mnuHelp_Click(); });
  on(main_.MMHelp, [this] { help_.mnuHelp_Click(); });
  events_.On(main_.qhelp1, Event::Click,
             [this](EventArgs& args) { help_.qhelp1_Click(args.index); });
  on(main_.mnuSubmitList, [this] { help_.mnuSubmitList_Click(); });
  on(main_.whatisBtn1, [this] { help_.whatisBtn1_Click(); });
}

void Program::ConnectReport() {
  frmReport& report = forms_.Get<frmReport>();
  events_.On(main_.mnuReport, Event::Click, Plain([this] { givingReport_.mnuReport_Click(); }));
  events_.On(report.Option1, Event::Click,
             [this](int index, EventArgs&) { givingReport_.Option1_Click(index); });
  events_.On(report.Text1, Event::KeyPress, [](int, EventArgs& args) {
    const bool isOfDate = (args.key >= '0' && args.key <= '9') || args.key == '-';
    if (!isOfDate && args.key != keys::kBackspace) args.key = 0;
  });
  events_.On(report.Text1, Event::KeyUp,
             [this](int, EventArgs& args) { givingReport_.Text1_KeyUp(args); });
  events_.On(report.Text1, Event::LostFocus,
             [this](int, EventArgs&) { givingReport_.Text1_LostFocus(); });
  events_.On(report.Goal, Event::KeyPress,
             [](EventArgs& args) { MainWindow::Text1_KeyPress(args); });
  events_.On(report.Goal, Event::Paste, [](EventArgs& args) { MainWindow::Text1_Paste(args); });
  events_.On(report.Goal, Event::KeyUp,
             [this](EventArgs& args) { givingReport_.Goal_KeyUp(args); });
  events_.On(report.Goal, Event::LostFocus, Plain([this] { givingReport_.Goal_LostFocus(); }));
  events_.On(report.Organizations, Event::ColumnClick,
             [this](EventArgs& args) { givingReport_.Organizations_ColumnClick(args.index); });
  events_.On(report.Sessions, Event::ItemClick,
             [this](EventArgs& args) { givingReport_.Sessions_ItemClick(args); });
  events_.On(report.Sessions, Event::KeyUp,
             [this](EventArgs& args) { givingReport_.Sessions_KeyUp(args); });
  events_.On(report.Option2, Event::Click,
             [this](int index, EventArgs&) { givingReport_.Option2_Click(index); });
  events_.On(report.Command1, Event::Click,
             [this](int index, EventArgs&) { givingReport_.Command1_Click(index); });
}

void Program::ConnectPayment() {
  frmPayOpt& payment = forms_.Get<frmPayOpt>();
  events_.On(payment, Event::Unload, Plain([this] { paymentOptions_.Form_Unload(); }));
  const auto chosen = [this](int, EventArgs&) { paymentOptions_.Option1_Click(); };
  events_.On(payment.Option1, Event::Click, chosen);
  // So that the method that is already chosen can be confirmed.
  events_.On(payment.Option1, Event::MouseUp, chosen);
  events_.On(payment.Command1, Event::Click,
             [this](int index, EventArgs&) { paymentOptions_.Command1_Click(index); });
}

void Program::ConnectViewer() {
  frmInfo& info = forms_.Get<frmInfo>();
  events_.On(info, Event::Load, Plain([this] { viewer_.Form_Load(); }));
  events_.On(info.Back, Event::Click, Plain([this] { viewer_.Back_Click(); }));
  events_.On(info.Browser, Event::Click, Plain([this] { viewer_.Browser_Click(); }));
  events_.On(info.VScroll1, Event::Scroll, Plain([this] { viewer_.VScroll1_Scroll(); }));
  events_.On(info.Label3, Event::Click, Plain([this] { translation_.Label3_Click(); }));

  frmPrefsTranslate& translate = forms_.Get<frmPrefsTranslate>();
  events_.On(translate, Event::Load, Plain([this] { translation_.Form_Load(); }));
  events_.On(translate.Command2, Event::Click, Plain([this] { translation_.Translate(); }));
  events_.On(translate.Command1, Event::Click, Plain([this] { translation_.Close(); }));
}

void Program::ConnectContact() {
  frmPersInfo& contact = forms_.Get<frmPersInfo>();
  events_.On(contact, Event::Load, Plain([this] { contact_.Form_Load(); }));
  events_.On(contact, Event::Close, Plain([this] { contact_.Cancel(); }));
  events_.On(contact.Command1, Event::Click,
             [this](int index, EventArgs&) { contact_.Command1_Click(index); });
  events_.On(contact.Text1[contact_field::kFullName], Event::KeyPress, RefuseComma);
  events_.On(contact.Combo1, Event::Click, Plain([this] { contact_.Combo1_Click(); }));
  events_.On(contact.Check1, Event::MouseUp, Plain([this] { contact_.Check1_MouseUp(); }));

  frmDonRankg& ranking = forms_.Get<frmDonRankg>();
  events_.On(ranking, Event::Load, Plain([this] { ranking_.Form_Load(); }));
  events_.On(ranking.Option1, Event::Click,
             [this](int index, EventArgs&) { ranking_.Option1_Click(index); });
  events_.On(ranking.Command1, Event::Click, Plain([this] { ranking_.Command1_Click(); }));

  frmMail& mail = forms_.Get<frmMail>();
  events_.On(mail, Event::Load, Plain([this] { messenger_.Form_Load(); }));
  events_.On(mail, Event::Close, Plain([this] { messenger_.Close(); }));
  events_.On(mail.Command1, Event::Click,
             [this](int index, EventArgs&) { messenger_.Command1_Click(index); });

  frmTellAFriend& tellAFriend = forms_.Get<frmTellAFriend>();
  events_.On(tellAFriend, Event::Load, Plain([this] { tellAFriend_.Form_Load(); }));
  events_.On(tellAFriend.Command1, Event::Click,
             [this](int index, EventArgs&) { tellAFriend_.Command1_Click(index); });
}

void Program::ConnectSmallWindows() {
  frmWait& wait = forms_.Get<frmWait>();
  events_.On(wait.Timer1, Event::Tick, Plain([this, &wait] {
               wait.Timer1.enabled = false;
               desk_.Unload(wait);
             }));
  const auto cancel = Plain([this, &wait] {
    requests_.Cancel();
    desk_.Unload(wait);
  });
  events_.On(wait.Command1, Event::Click, cancel);
  events_.On(main_.CancelRequest, Event::Click, Plain([this] { requests_.Cancel(); }));
  events_.On(wait, Event::Close, cancel);

  frmWizard& wizard = forms_.Get<frmWizard>();
  events_.On(wizard, Event::Load, Plain([this] { wizard_.Form_Load(); }));
  events_.On(wizard.Option1, Event::MouseUp,
             [this](int index, EventArgs&) { wizard_.Option1_MouseUp(index); });
  events_.On(wizard.Command1, Event::Click, Plain([this] { wizard_.Command1_Click(); }));
  events_.On(wizard.Command3, Event::Click, Plain([this] { wizard_.Command3_Click(); }));
  events_.On(wizard.Command2, Event::Click, Plain([this] { wizard_.Command2_Click(); }));

  frmSrch& search = forms_.Get<frmSrch>();
  events_.On(search, Event::Load, Plain([this] { search_.Restart(); }));
  events_.On(search.Text1, Event::Change, Plain([this] { search_.Restart(); }));
  events_.On(search.Option1, Event::Click,
             [&search](int, EventArgs&) { search.NotFound.visible = false; });
  events_.On(search.Command1, Event::Click, Plain([this] { search_.Command1_Click(); }));
}

}  // namespace benevix
