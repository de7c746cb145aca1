#pragma once

#include "controls/controls.h"

namespace benevix {

// The menus of the main window, in their order, and the pop-ups.
struct MainMenu {
  // The commands for the selected organization.
  void EnableOrganizationCommands(bool enable) {
    for (MenuItem* item : {&mnuMoreInfo, &mnuContactThem, &mnuGotheirWeb, &MMTellMe, &MMContactThem,
                           &MMGoWeb, &mnuFavAddTop, &mnuFavAdd}) {
      item->enabled = enable;
    }
  }

  MenuItem TFile{"&File"};
  MenuItem mnuNew{"&New Session", "TFile"};
  MenuItem mnuPrntSession{"Print this session", "TFile", true};
  MenuItem mnuHistory{"History", "TFile"};
  MenuItem mnuPrtHistory{"Print History", "TFile"};
  MenuItem mnuReport{"Giving Report...", "TFile"};
  MenuItem mnuUpdateList{"Update List", "TFile", true};
  MenuItem mnuExit{"E&xit", "TFile", true};

  MenuItem TEdit{"&Edit"};
  MenuItem mnuCls{"Clear", "TEdit"};
  MenuItem mnuCorrect{"Correct", "TEdit"};
  MenuItem mnuUndo{"Undo", "TEdit", true};
  MenuItem mnuRedo{"Redo", "TEdit"};

  MenuItem TFavs{"&Favorites"};
  MenuItem mnuDistribFavs{"Distribute", "TFavs"};
  MenuItem mnuFavAddTop{"Add to Favorites", "TFavs", true};
  MenuItem mnuCancelRemove{"Cancel Remove", "TFavs"};
  MenuItem mnuFavsRemove{"Remove from Favorites", "TFavs"};
  MenuItem mnuNoFavs{"None yet: select an organization and choose Add to Favorites", "TFavs", true};
  MenuArray mnuFavs{"TFavs", true};

  MenuItem Tprefs{"&Preferences"};
  MenuItem mnuChgPayMethod{"Change Payment Method", "Tprefs"};
  MenuItem mnuRound{"Round Totals", "Tprefs", true};
  MenuItem mnuTyped{"Donation field is", "Tprefs"};
  MenuItem mnuDirectCurr{"Currency", "mnuTyped"};
  MenuItem mnuPercentBal{"Percentage of Balance", "mnuTyped"};
  MenuItem mnuFees{"Fees", "Tprefs"};
  MenuItem mnuAddFees{"Add to my Budget", "mnuFees"};
  MenuItem mnuDeductFees{"Deduct from my Budget", "mnuFees"};
  MenuItem mnuSettings{"Contact Info", "Tprefs", true};
  MenuItem mnuWiz{"Start with the Wizard", "Tprefs"};

  MenuItem TResources{"&Resources"};
  MenuItem mnuSearch{"Search", "TResources"};
  MenuItem mnuLocate{"List Countries", "TResources"};
  MenuArray lclist{"mnuLocate"};  // element i - 1 is the country heading of row i
  MenuItem mnuShowWiz{"Show Wizard", "TResources"};
  MenuItem mnuMoreInfo{"Tell me about this organization", "TResources", true};
  MenuItem mnuContactThem{"Contact this organization", "TResources"};
  MenuItem mnuGotheirWeb{"Go to their web site", "TResources"};
  MenuItem mnuRecallSession{"Recall Last Session", "TResources", true};
  MenuItem mnuSendCopy{"Send a copy of Benevix to a Friend", "TResources"};

  MenuItem THelp{"&Help"};
  MenuItem mnuAbout{"&About", "THelp"};
  MenuItem gotoBVXweb{"Go to BVX on the web", "THelp"};
  MenuItem mnuHelp{"&Help", "THelp"};
  MenuItem mnuQhelp{"Quick Help", "THelp"};
  MenuArray qhelp1{"mnuQhelp"};
  MenuItem mnuSubmitList{"Submit to List", "THelp", true};

  MenuItem TMMenu{"MouseMenu"};  // pop-up of the list
  MenuItem MMTellMe{"Tell me about this organization", "TMMenu"};
  MenuItem MMContactThem{"Contact this Organization", "TMMenu"};
  MenuItem MMGoWeb{"Go to their Website", "TMMenu"};
  MenuItem MMClear{"Clear", "TMMenu", true};
  MenuItem MMCorrect{"Correct", "TMMenu"};
  MenuItem mnuFavAdd{"Add to Favorites", "TMMenu", true};
  MenuItem MMHelp{"Help", "TMMenu", true};

  MenuItem mnuWhatis{"What is it pop"};  // pop-up of the buttons
  MenuItem whatisBtn1{"What is this button?", "mnuWhatis"};
};

template <class F>
void visitMenu(MainMenu& menu, F&& f) {
  f("TFile", menu.TFile);
  f("mnuNew", menu.mnuNew);
  f("mnuPrntSession", menu.mnuPrntSession);
  f("mnuHistory", menu.mnuHistory);
  f("mnuPrtHistory", menu.mnuPrtHistory);
  f("mnuReport", menu.mnuReport);
  f("mnuUpdateList", menu.mnuUpdateList);
  f("mnuExit", menu.mnuExit);
  f("TEdit", menu.TEdit);
  f("mnuCls", menu.mnuCls);
  f("mnuCorrect", menu.mnuCorrect);
  f("mnuUndo", menu.mnuUndo);
  f("mnuRedo", menu.mnuRedo);
  f("TFavs", menu.TFavs);
  f("mnuDistribFavs", menu.mnuDistribFavs);
  f("mnuFavAddTop", menu.mnuFavAddTop);
  f("mnuCancelRemove", menu.mnuCancelRemove);
  f("mnuFavsRemove", menu.mnuFavsRemove);
  f("mnuNoFavs", menu.mnuNoFavs);
  f("mnuFavs", menu.mnuFavs);
  f("Tprefs", menu.Tprefs);
  f("mnuChgPayMethod", menu.mnuChgPayMethod);
  f("mnuRound", menu.mnuRound);
  f("mnuTyped", menu.mnuTyped);
  f("mnuDirectCurr", menu.mnuDirectCurr);
  f("mnuPercentBal", menu.mnuPercentBal);
  f("mnuFees", menu.mnuFees);
  f("mnuAddFees", menu.mnuAddFees);
  f("mnuDeductFees", menu.mnuDeductFees);
  f("mnuSettings", menu.mnuSettings);
  f("mnuWiz", menu.mnuWiz);
  f("TResources", menu.TResources);
  f("mnuSearch", menu.mnuSearch);
  f("mnuLocate", menu.mnuLocate);
  f("lclist", menu.lclist);
  f("mnuShowWiz", menu.mnuShowWiz);
  f("mnuMoreInfo", menu.mnuMoreInfo);
  f("mnuContactThem", menu.mnuContactThem);
  f("mnuGotheirWeb", menu.mnuGotheirWeb);
  f("mnuRecallSession", menu.mnuRecallSession);
  f("mnuSendCopy", menu.mnuSendCopy);
  f("THelp", menu.THelp);
  f("mnuAbout", menu.mnuAbout);
  f("gotoBVXweb", menu.gotoBVXweb);
  f("mnuHelp", menu.mnuHelp);
  f("mnuQhelp", menu.mnuQhelp);
  f("qhelp1", menu.qhelp1);
  f("mnuSubmitList", menu.mnuSubmitList);
  f("TMMenu", menu.TMMenu);
  f("MMTellMe", menu.MMTellMe);
  f("MMContactThem", menu.MMContactThem);
  f("MMGoWeb", menu.MMGoWeb);
  f("MMClear", menu.MMClear);
  f("MMCorrect", menu.MMCorrect);
  f("mnuFavAdd", menu.mnuFavAdd);
  f("MMHelp", menu.MMHelp);
  f("mnuWhatis", menu.mnuWhatis);
  f("whatisBtn1", menu.whatisBtn1);
}

}  // namespace benevix
