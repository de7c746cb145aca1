#pragma once

#include <functional>

#include "controls/desk.h"
#include "core/messages.h"
#include "core/run_values.h"
#include "core/settings_store.h"
#include "forms/frmBVX.h"
#include "forms/frmSplash.h"
#include "platform/surroundings.h"

namespace benevix {

// The program's entry and exit: the order in which the other rooms are started.
class StartUp {
 public:
  // The steps that other rooms own, in the order in which they run.
  struct Steps {
    std::function<void()> checkServerStatus;
    // Only when the server answered:
    std::function<void()> loadFeeRates;
    std::function<void()> downloadYtd;
    std::function<void()> readListVersion;
    std::function<void()> updateListSilently;
    // In any case:
    std::function<void()> loadOrganizationList;
    std::function<void()> putOwnName;
    std::function<void()> loadOtherNames;
    std::function<void()> buildQuickHelp;
    std::function<void()> loadFavoritesMenu;
    std::function<void()> buildCountriesMenu;
    // When the main window stands:
    std::function<void()> loadNews;
    std::function<void()> showWizard;
    // At the end:
    std::function<void()> removeYtd;
  };

  StartUp(frmSplash& splash, frmBVX& main, Desk& desk, SettingsStore& settings, Messages& messages,
          RunValues& run, Surroundings& surroundings, Steps steps)
      : splash_(splash),
        main_(main),
        desk_(desk),
        settings_(settings),
        messages_(messages),
        run_(run),
        surroundings_(surroundings),
        steps_(std::move(steps)) {}

  // Returns when the splash stands.
  void Main();
  void InitSettings();
  void CleanUpdater();

  void frmSplash_Load();
  void Image1_MouseMove();
  void Image2_MouseMove();
  // 0 enters, 1 leaves.
  void Image2_Click(int index);

  void frmBVX_Load();
  void frmBVX_Unload();

  // Reads `ShowWiz`; a text that says neither leaves the mark off.
  [[nodiscard]] bool StartsWithWizard();
  // The menu's mark is toggled and stored; setting it also shows the wizard.
  void mnuWiz_Click();

 private:
  void LoadMainWindow();
  void ApplyConnectionSettings();

  frmSplash& splash_;
  frmBVX& main_;
  Desk& desk_;
  SettingsStore& settings_;
  Messages& messages_;
  RunValues& run_;
  Surroundings& surroundings_;
  Steps steps_;
};

// 3, 9, 1 or 0 by the operating system's platform identifier 0, 1, 2 or any other.
int GetPlatformCode(int platformId);

}  // namespace benevix
