#include "program/start_up.h"

#include <cmath>

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "core/shell_helpers.h"

namespace benevix {

int GetPlatformCode(int platformId) {
  switch (platformId) {
    case 0:
      return 3;
    case 1:
      return 9;
    case 2:
      return 1;
    default:
      return 0;
  }
}

void StartUp::Main() {
  double listVersion = 0;
  try {
    listVersion = Val(settings_.GetUserString("BVXDB"));
  } catch (const RuntimeError&) {
    // A number beyond all versions is no version.
  }
  if (listVersion == 0) InitSettings();
  const ProgramInfo& info = surroundings_.info;
  const auto keepCurrent = [&](const std::string& name, const std::string& value) {
    if (settings_.GetUserString(name) != value) settings_.SaveUserString(name, value);
  };
  keepCurrent("ExeName", info.exeName);
  keepCurrent("Version", info.Version());
  if (settings_.GetUserString("updater") == "1") CleanUpdater();
  desk_.Show(splash_);
}

void StartUp::InitSettings() {
  const ProgramInfo& info = surroundings_.info;
  settings_.SaveString(Root::LocalMachine, kSettingsPath, "Proxy", "");
  settings_.SaveString(Root::LocalMachine, kSettingsPath, "TimeOut", "5");
  settings_.SaveUserString("BVXDB", "1.0000");
  settings_.SaveUserString("LangVer", "english");
  settings_.SaveUserString("Version", info.Version());
  settings_.SaveUserString("StartIn", FromUtf8(info.folder));
  settings_.SaveUserString("ExeName", info.exeName);
  CreateDesktopShortcut(surroundings_.shell, info);
}

void StartUp::CleanUpdater() {
  try {
    surroundings_.files.Remove(surroundings_.info.folder + "/updater.exe");
  } catch (const RuntimeError&) {
    // It is no longer started either way.
  }
  settings_.SaveUserString("updater", "");
}

void StartUp::frmSplash_Load() {
  const ProgramInfo& info = surroundings_.info;
  splash_.top = static_cast<int>(std::lround(info.screenHeight / 3.5));
  splash_.left = static_cast<int>(std::lround(info.screenWidth / 3.5));
}

void StartUp::Image1_MouseMove() {
  splash_.Shape2.borderColor = colors::kSplashBorder;
}

void StartUp::Image2_MouseMove() {
  splash_.Shape2.borderColor = colors::kAccent;
}

void StartUp::Image2_Click(int index) {
  if (index == 1) desk_.End();
  splash_.mousePointer = MousePointer::Hourglass;
  desk_.Show(main_);
  steps_.loadNews();
  if (main_.mnuWiz.checked) steps_.showWizard();
  desk_.Unload(splash_);
}

void StartUp::frmBVX_Load() {
  try {
    LoadMainWindow();
  } catch (const RuntimeError&) {
    messages_.Show("Unrecoverable Error. Quiting", BoxIcon::Critical);
    desk_.End();
  }
}

void StartUp::LoadMainWindow() {
  main_.Option3[0].backColor = colors::kSand;
  main_.Option3[1].backColor = colors::kLightSand;
  ApplyConnectionSettings();
  steps_.checkServerStatus();
  if (run_.ServerOK) {
    steps_.loadFeeRates();
    steps_.downloadYtd();
    steps_.readListVersion();
    steps_.updateListSilently();
  }
  steps_.loadOrganizationList();
  steps_.putOwnName();
  steps_.loadOtherNames();
  run_.PlatformCode = GetPlatformCode(surroundings_.info.platformId);
  main_.Label4.left = frmBVX::kWidth;
  steps_.buildQuickHelp();
  main_.mnuWiz.checked = StartsWithWizard();
  steps_.loadFavoritesMenu();
  steps_.buildCountriesMenu();
}

void StartUp::ApplyConnectionSettings() {
  const auto machine = [&](const std::string& name) {
    return settings_.GetString(Root::LocalMachine, kSettingsPath, name);
  };
  const std::string proxy = machine("Proxy");
  const auto timeout = ParseNumber(machine("TimeOut"));
  for (HttpControl* control : {&main_.Inet1, &main_.Inet2}) {
    if (!proxy.empty()) control->proxy = proxy;
    control->requestTimeout = timeout ? ToInt32(std::trunc(*timeout)) : 5;
  }
}

bool StartUp::StartsWithWizard() {
  const std::string stored = settings_.GetUserString("ShowWiz");
  if (stored.empty()) return true;
  try {
    return TextToBoolean(stored);
  } catch (const RuntimeError&) {
    return false;
  }
}

void StartUp::mnuWiz_Click() {
  main_.mnuWiz.checked = !main_.mnuWiz.checked;
  settings_.SaveUserString("ShowWiz", main_.mnuWiz.checked ? "True" : "False");
  if (main_.mnuWiz.checked) steps_.showWizard();
}

void StartUp::frmBVX_Unload() {
  steps_.removeYtd();
  desk_.End();
}

}  // namespace benevix
