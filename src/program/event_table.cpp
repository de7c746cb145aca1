// Which event goes to which handler.

#include "program/program.h"
#include "session/modes.h"

namespace benevix {
namespace {

// A handler that needs nothing of the event.
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
  ConnectPayment();
  ConnectViewer();
  ConnectContact();
  ConnectSmallWindows();
}

void Program::ConnectSplash() {
  frmSplash& splash = forms_.Get<frmSplash>();
  events_.On(splash, Event::Load, Plain([this] { startUp_.frmSplash_Load(); }));
  events_.On(splash, Event::Close, Plain([this] { desk_.End(); }));
  events_.On(splash.Image1, Event::MouseMove, Plain([this] { startUp_.Image1_MouseMove(); }));
  events_.On(splash.Image2, Event::MouseMove,
             [this](int, EventArgs&) { startUp_.Image2_MouseMove(); });
  events_.On(splash.Image2, Event::Click,
             [this](int index, EventArgs&) { startUp_.Image2_Click(index); });
}

void Program::ConnectMainWindow() {
  frmBVX& main = forms_.Get<frmBVX>();
  events_.On(main, Event::Load, Plain([this] { startUp_.frmBVX_Load(); }));
  events_.On(main, Event::Unload, Plain([this] { startUp_.frmBVX_Unload(); }));

  events_.On(main.Text1, Event::KeyPress,
             [](int, EventArgs& args) { MainWindow::Text1_KeyPress(args); });
  events_.On(main.Text1, Event::KeyUp,
             [this](int index, EventArgs& args) { mainWindow_.Text1_KeyUp(index, args); });
  events_.On(main.Text1, Event::Change,
             [this](int index, EventArgs&) { mainWindow_.Text1_Change(index); });
  events_.On(main.Text1, Event::GotFocus,
             [this](int index, EventArgs&) { mainWindow_.Text1_GotFocus(index); });

  events_.On(main.Option1, Event::Click,
             [this](int index, EventArgs&) { donorName_.Option1_Click(index); });
  events_.On(main.Combo1, Event::LostFocus, Plain([this] { donorName_.Combo1_LostFocus(); }));
  events_.On(main.Option3, Event::Click, [this](int index, EventArgs&) {
    SetFeeMode(forms_.Get<frmBVX>(), index == 0 ? FeeMode::Add : FeeMode::Deduct);
  });

  events_.On(main.ListView1, Event::ItemClick,
             [this](EventArgs& args) { listView_.ListView1_ItemClick(args); });
  events_.On(main.ListView1, Event::KeyPress,
             [this](EventArgs& args) { listTyping_.ListView1_KeyPress(args); });
  events_.On(main.ListView1, Event::KeyUp,
             [this](EventArgs& args) { listView_.ListView1_KeyUp(args); });
  events_.On(main.Command1, Event::Click, Plain([this] { finalization_.Command1_Click(); }));
  events_.On(main.Command1, Event::MouseUp, [this](EventArgs& args) {
    if (args.button == MouseButton::Right) ++forms_.Get<frmBVX>().mnuWhatis.popUps;
  });
  events_.On(main.Label11, Event::MouseUp, [this](int index, EventArgs&) {
    if (index == 0) {
      listUpdateCommand_.Label11_MouseUp();
    } else {
      help_.mnuHelp_Click();
    }
  });
  events_.On(main.iLbl, Event::Click, Plain([this] { yearToDate_.iLbl_Click(); }));
  events_.On(main.Label12, Event::Click, Plain([this] { news_.Label12_Click(); }));
  events_.On(main.Timer1, Event::Tick, Plain([this] { mainWindow_.Timer1_Tick(); }));
  events_.On(main.Timer2, Event::Tick, Plain([this] { mainWindow_.Timer2_Tick(); }));
}

// File, Edit, Favorites and Preferences.
void Program::ConnectSessionMenus() {
  frmBVX& main = forms_.Get<frmBVX>();
  const auto on = [this](const MenuItem& item, auto handler) {
    events_.On(item, Event::Click, Plain(handler));
  };
  on(main.mnuNew, [this] { NewSession(); });
  on(main.mnuPrntSession, [this] { printing_.mnuPrntSession_Click(); });
  on(main.mnuHistory, [this] { history_.ShowHistory(); });
  on(main.mnuPrtHistory, [this] { printing_.mnuPrtHistory_Click(); });
  on(main.mnuUpdateList, [this] { listUpdateCommand_.Label11_MouseUp(); });
  on(main.mnuExit, [this] { desk_.Unload(forms_.Get<frmBVX>()); });

  on(main.mnuCls, [this] { editCommands_.mnuCls_Click(); });
  on(main.mnuCorrect, [this] { editCommands_.mnuCorrect_Click(); });

  on(main.mnuDistribFavs, [this] { distribution_.mnuDistribFavs_Click(); });
  on(main.mnuFavAddTop, [this] { favorites_.Add(); });
  on(main.mnuFavAdd, [this] { favorites_.Add(); });
  on(main.mnuCancelRemove, [this] { favorites_.mnuCancelRemove_Click(); });
  on(main.mnuFavsRemove, [this] { favorites_.mnuFavsRemove_Click(); });
  events_.On(main.mnuFavs, Event::Click,
             [this](EventArgs& args) { favorites_.mnuFavs_Click(args.index); });

  on(main.mnuChgPayMethod, [this] { paymentOptions_.Ask(); });
  on(main.mnuRound, [&main] { main.mnuRound.checked = !main.mnuRound.checked; });
  on(main.mnuDirectCurr, [&main] { SetDonationMode(main, DonationMode::Currency); });
  on(main.mnuPercentBal, [&main] { SetDonationMode(main, DonationMode::Percentage); });
  on(main.mnuAddFees, [&main] { SetFeeMode(main, FeeMode::Add); });
  on(main.mnuDeductFees, [&main] { SetFeeMode(main, FeeMode::Deduct); });
  on(main.mnuSettings, [this] { contact_.Open(ContactCaller::Menu); });
  on(main.mnuWiz, [this] { startUp_.mnuWiz_Click(); });
}

// Resources, Help and the pop-ups.
void Program::ConnectOtherMenus() {
  frmBVX& main = forms_.Get<frmBVX>();
  const auto on = [this](const MenuItem& item, auto handler) {
    events_.On(item, Event::Click, Plain(handler));
  };
  on(main.mnuSearch, [this] { desk_.Show(forms_.Get<frmSrch>()); });
  events_.On(main.lclist, Event::Click,
             [this](EventArgs& args) { listView_.lclist_Click(args.index); });
  on(main.mnuShowWiz, [this] { wizard_.Show(); });
  for (const MenuItem* item : {&main.mnuMoreInfo, &main.MMTellMe}) {
    on(*item, [this] { information_.MoreInfo(); });
  }
  for (const MenuItem* item : {&main.mnuContactThem, &main.MMContactThem}) {
    on(*item, [this] { information_.Contact(); });
  }
  for (const MenuItem* item : {&main.mnuGotheirWeb, &main.MMGoWeb}) {
    on(*item, [this] { information_.WebSite(); });
  }
  on(main.mnuRecallSession, [this] { lastSession_.mnuRecallSession_Click(); });
  on(main.mnuSendCopy, [this] { desk_.Show(forms_.Get<frmTellAFriend>()); });

  on(main.mnuAbout, [this] { help_.mnuAbout_Click(); });
  on(main.gotoBVXweb, [this] { help_.gotoBVXweb_Click(); });
  on(main.mnuHelp, [this] { help_.mnuHelp_Click(); });
  on(main.MMHelp, [this] { help_.mnuHelp_Click(); });
  events_.On(main.qhelp1, Event::Click,
             [this](EventArgs& args) { help_.qhelp1_Click(args.index); });
  on(main.mnuSubmitList, [this] { help_.mnuSubmitList_Click(); });
  on(main.whatisBtn1, [this] { help_.whatisBtn1_Click(); });
}

void Program::ConnectPayment() {
  frmPayOpt& payment = forms_.Get<frmPayOpt>();
  events_.On(payment, Event::Unload, Plain([this] { paymentOptions_.Form_Unload(); }));
  const auto chosen = [this](int, EventArgs&) { paymentOptions_.Option1_Click(); };
  events_.On(payment.Option1, Event::Click, chosen);
  // So that the method that is chosen already can be confirmed.
  events_.On(payment.Option1, Event::MouseUp, chosen);
  events_.On(payment.Command1, Event::Click,
             [this](int index, EventArgs&) { paymentOptions_.Command1_Click(index); });
}

void Program::ConnectViewer() {
  frmInfo& info = forms_.Get<frmInfo>();
  events_.On(info, Event::Load, Plain([this] { informationViewer_.Form_Load(); }));
  events_.On(info, Event::Unload, Plain([this] { informationViewer_.Form_Unload(); }));
  events_.On(info.VScroll1, Event::Scroll, Plain([this] { informationViewer_.VScroll1_Scroll(); }));
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
  events_.On(wait.Timer1, Event::Tick, Plain([this] {
               forms_.Get<frmWait>().Timer1.enabled = false;
               desk_.Unload(forms_.Get<frmWait>());
             }));

  frmWizard& wizard = forms_.Get<frmWizard>();
  events_.On(wizard, Event::Load, Plain([this] { wizard_.Form_Load(); }));
  events_.On(wizard.Option1, Event::MouseUp,
             [this](int index, EventArgs&) { wizard_.Option1_MouseUp(index); });
  events_.On(wizard.Command1, Event::Click, Plain([this] { wizard_.Command1_Click(); }));
  events_.On(wizard.Command2, Event::Click, Plain([this] { wizard_.Command2_Click(); }));

  frmSrch& search = forms_.Get<frmSrch>();
  events_.On(search, Event::Load, Plain([this] { search_.Restart(); }));
  events_.On(search.Text1, Event::Change, Plain([this] { search_.Restart(); }));
  events_.On(search.Command1, Event::Click, Plain([this] { search_.Command1_Click(); }));
}

}  // namespace benevix
