#pragma once

#include "controls/controls.h"
#include "forms/main_decoration.h"
#include "forms/main_indexes.h"
#include "forms/main_menu.h"

namespace benevix {

// What a screen reader says of the two indicators while they are off.
inline constexpr const char* kNoNews = "No news";
inline constexpr const char* kNoAmounts = "No amounts";

// The main window.
struct frmBVX : Window, MainDecoration, MainMenu {
  static constexpr const char* kName = "frmBVX";
  static constexpr int kWidth = 15360;  // twips; where the credit line comes in

  frmBVX() {
    caption = "BENEVIX";
    ListView1.columns = {"Country", "Organization", "Type", "Amount", "D.Pool",
                         "From",    "ID",           "",     "Fee",    "CC Fee"};
    Text1[money_box::kDonation].enabled = false;
    Option1[donor_option::kMyName].value = true;
    Option2[delivery_option::kPool].value = true;
    Option3[fee_option::kAdd].value = true;
    for (TextBox& box : Text1) box.takes = "Digits and a point only";
    Combo1.takes = kNameTakes;
    for (OptionButton& option : Option1) option.enabled = false;
    for (OptionButton& option : Option2) option.enabled = false;
    Combo1.enabled = false;
    Check1.enabled = false;
    Command1.enabled = false;
    for (MenuItem* item :
         {&mnuDistribFavs, &mnuFavsRemove, &mnuCancelRemove, &mnuPrntSession, &mnuUndo, &mnuRedo}) {
      item->enabled = false;
    }
    EnableOrganizationCommands(false);
    ShowAll.visible = false;
    CancelRequest.visible = false;
    CancelRequest.endsRequests = true;
    Offline.visible = false;
    Unfinished.visible = false;
    PastGifts.visible = false;
    for (Button* button : {&ContinueUnfinished, &StartAfresh}) button->holder = "Unfinished";
    GiftRows.takesFocus = false;
    GiftRows.holder = "Gifts";
    for (auto* labels : {&GiftSumName, &GiftSum}) {
      for (Label& label : *labels) label.holder = "Gifts";
    }
    mnuAddFees.checked = true;
    mnuDirectCurr.checked = true;
    mnuNoFavs.enabled = false;
    TMMenu.visible = false;
    mnuWhatis.visible = false;
    lclist.items[0];  // element 0 of both is always there, without a caption until it is filled
    qhelp1.items[0];
    Shape2.holder = "Frame9";
    Shape2.meaning = kNoAmounts;
    Shape5.meaning = kNoNews;
    SetShortcuts();
  }

  // A command with a menu item has its shortcut there.
  void SetShortcuts() {
    closesByEscape = false;
    ListView1.shortcut = "Ctrl+L";
    Filter.shortcut = "Ctrl+E";
    Label12.shortcut = "Ctrl+Shift+N";
    iLbl.shortcut = "Ctrl+Shift+Y";
    mnuNew.shortcut = "Ctrl+N";
    mnuPrntSession.shortcut = "Ctrl+P";
    mnuHistory.shortcut = "Ctrl+H";
    mnuPrtHistory.shortcut = "Ctrl+Shift+P";
    mnuReport.shortcut = "Ctrl+Shift+R";
    mnuUpdateList.shortcut = "F5";
    mnuExit.shortcut = "Ctrl+Q";
    endsRequests = mnuExit.endsRequests = true;
    mnuCls.shortcut = "Ctrl+Shift+Del";
    mnuCorrect.shortcut = "F2";
    mnuUndo.shortcut = "Ctrl+Z";
    mnuRedo.shortcut = "Ctrl+Shift+Z; Ctrl+Y";
    mnuDistribFavs.shortcut = "Ctrl+Shift+D";
    mnuFavAddTop.shortcut = "Ctrl+D";
    mnuChgPayMethod.shortcut = "Ctrl+Shift+M";
    mnuSettings.shortcut = "Ctrl+I";
    mnuSearch.shortcut = "Ctrl+F";
    mnuMoreInfo.shortcut = "Ctrl+T";
    mnuContactThem.shortcut = "Ctrl+M";
    mnuGotheirWeb.shortcut = "Ctrl+G";
    mnuRecallSession.shortcut = "Ctrl+R";
    mnuHelp.shortcut = "F1";
  }

  Label Label1[4] = {Label("Budget"), Label("Balance"), Label("Donation"), Label("Funds")};
  TextBox Text1[3] = {TextBox("The maximum amount to donate"), TextBox("how much is left"),
                      TextBox("The amount you give")};
  Label Label3{"$"};   // the unit of the Donation box
  MoneyBar BudgetUse;  // how the Budget is used
  // What each payment method would charge.
  Label ChargeName[3] = {Label("Pay by Credit Card"), Label("Pay by Funds Transfer"),
                         Label("Pay by e-check")};
  Label ChargeAmount[3], ChargeFees[3];
  Label Label9{"Estimated Bal", "Estimated Balance"};
  // Hidden once a Budget is entered; then the Balance that a typed donation would leave.
  Label Label8;
  Label Label6{"Type a Dollar amount in the Budget box and press <Enter>"};  // the hint line
  Button CancelRequest{"Cancel", "Stop waiting for the server"};  // while there is a request
  Label Label12{"System Message", "Click to receive"};            // the news, kept in its tag
  Label Offline{"Offline",
                "The server did not answer. News, Update List and information about organizations "
                "need it, and so does Continue, which asks it again."};
  Label Label10{"Fees"};  // heading of the fee options
  Label Label11[2] = {Label("Update List"), Label("&Help")};
  Label Label4{"Benevix helps you give."};  // the scrolling credit line, later the payment method
  Label iLbl{"YTD Status", {}, "Frame9"};   // opens and closes the year-to-date window

  Frame Frame2{"Fees"};
  OptionButton Option3[2] = {OptionButton("Add to Budget", {}, "Frame2"),
                             OptionButton("Deduct from Budget", {}, "Frame2")};
  Frame Frame1{"Donation shall appear as sent by"};
  OptionButton Option1[3] = {
      OptionButton("My Name", "Your name", "Frame1"),
      OptionButton("Other Name", "Somebody else name. Type the name on the field", "Frame1"),
      OptionButton("Anonymous", "Somebody with no name", "Frame1")};
  ComboBox Combo1{true, "Who the donor is", "Frame1"};
  Frame Frame3{"Deliver as"};
  OptionButton Option2[2] = {
      OptionButton("Donors Pool", "Donation goes out with donations sent by other BVX users",
                   "Frame3"),
      OptionButton("Stand-alone", "This donation is sent alone", "Frame3")};
  Frame Frame4{"Mailing Status"};
  CheckBox Check1{"Send Proof of Mailing", "Click to receive notice when donation is sent out",
                  "Frame4"};
  Frame Frame7{"Tax Certificate"};
  CheckBox Check2{"Request Certificate", "Tells charity you want a notification for tax purposes",
                  "Frame7"};
  Frame Frame9{"YTD Status"};
  Frame PastGifts{"Your gifts here"};  // to the selected organization, in earlier sessions
  Label PastGiftsText{"", {}, "PastGifts"};

  // What is given in this session, beside the list where a window is wide enough.
  Frame Gifts{"Your gifts"};
  Label GiftsNote{"What you give in this session appears here.", {}, "Gifts"};
  Table GiftRows{{}, {{"Organization", false, 24}, {"Amount", true, 10}}};
  Label GiftSumName[4], GiftSum[4];  // the sum, then the fees

  // The session that the last run left unfinished; without the buttons, that this one is not kept.
  PictureBox Unfinished;
  Label UnfinishedText{"", {}, "Unfinished"};
  Button ContinueUnfinished{"Continue It", "Go on with this session where it was left"};
  Button StartAfresh{"Start Afresh", "Give this session up"};

  // Which rows of the list are shown.
  TextBox Filter{"Shows the organizations whose name, type or country has these words"};
  CheckBox OnlyGiven{"Only those I give to", "Shows the organizations with a donation"};
  Button ShowAll{"Show All", "Shows the whole list again"};

  ListView ListView1;
  // Tag "1" while Continue waits for the payment method.
  Button Command1{"&Continue", "Send the donation(s)"};  // the array's only element, 1
  Label ContinueNote;                                    // what Continue waits for

  HttpControl Inet1, Inet2;  // for the server and for the translation service
  Timer Timer1{20, false};   // scrolls the credit line in; its tag counts the ticks after that
  Timer Timer2{500, false};  // makes the news indicator blink
  Shape Shape2;              // the year-to-date indicator
  Shape Shape5;              // the news indicator
  Shape Shape7;              // the ring around the news indicator
};

template <class F>
void visit(frmBVX& window, F&& f) {
  f("Label1", window.Label1);
  f("Text1", window.Text1);
  f("Label3", window.Label3);
  f("BudgetUse", window.BudgetUse);
  f("ChargeName", window.ChargeName);
  f("ChargeAmount", window.ChargeAmount);
  f("ChargeFees", window.ChargeFees);
  f("Label9", window.Label9);
  f("Label8", window.Label8);
  f("Frame2", window.Frame2);
  f("Label10", window.Label10);
  f("Option3", window.Option3);
  f("Unfinished", window.Unfinished);
  f("UnfinishedText", window.UnfinishedText);
  f("ContinueUnfinished", window.ContinueUnfinished);
  f("StartAfresh", window.StartAfresh);
  f("Filter", window.Filter);
  f("OnlyGiven", window.OnlyGiven);
  f("ShowAll", window.ShowAll);
  f("ListView1", window.ListView1);
  f("Frame1", window.Frame1);
  f("Option1", window.Option1);
  f("Combo1", window.Combo1);
  f("Frame3", window.Frame3);
  f("Option2", window.Option2);
  f("Frame4", window.Frame4);
  f("Check1", window.Check1);
  f("Frame7", window.Frame7);
  f("Check2", window.Check2);
  f("Frame9", window.Frame9);
  f("iLbl", window.iLbl);
  f("PastGifts", window.PastGifts);
  f("PastGiftsText", window.PastGiftsText);
  f("Gifts", window.Gifts);
  f("GiftsNote", window.GiftsNote);
  f("GiftRows", window.GiftRows);
  f("GiftSumName", window.GiftSumName);
  f("GiftSum", window.GiftSum);
  f("Command1(1)", window.Command1);
  f("ContinueNote", window.ContinueNote);
  f("Label6", window.Label6);
  f("CancelRequest", window.CancelRequest);
  f("Label12", window.Label12);
  f("Offline", window.Offline);
  f("Label11", window.Label11);
  f("Label4", window.Label4);
  f("Inet1", window.Inet1);
  f("Inet2", window.Inet2);
  f("Timer1", window.Timer1);
  f("Timer2", window.Timer2);
  f("Shape2", window.Shape2);
  f("Shape5", window.Shape5);
  f("Shape7", window.Shape7);
  visitDecoration(window, f);
  visitMenu(window, f);
}

}  // namespace benevix
