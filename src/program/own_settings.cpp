#include "program/own_settings.h"

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "core/shell_helpers.h"

namespace benevix {
namespace {

bool IsFirstRun(SettingsStore& settings) {
  // Settings that cannot be read just now are no first run, which would reset them.
  const auto version = settings.ReadString(Root::CurrentUser, kSettingsPath, "BVXDB");
  try {
    return version && Val(*version) == 0;
  } catch (const RuntimeError&) {
    return true;  // a number beyond a double is no version
  }
}

}  // namespace

void UpdateOwnSettings(SettingsStore& settings, Environment& environment) {
  if (IsFirstRun(settings)) InitSettings(settings, environment);
  const auto keepCurrent = [&](const std::string& name, const std::string& value) {
    if (settings.GetUserString(name) != value) settings.SaveUserString(name, value);
  };
  keepCurrent("ExeName", environment.info.exeName);
  keepCurrent("Version", environment.info.Version());
  if (settings.GetUserString("updater") == "1") CleanUpdater(settings, environment);
}

void InitSettings(SettingsStore& settings, Environment& environment) {
  const ProgramInfo& info = environment.info;
  settings.SaveString(Root::LocalMachine, kSettingsPath, "Proxy", "");
  settings.SaveString(Root::LocalMachine, kSettingsPath, "TimeOut", "5");
  settings.SaveUserString("BVXDB", "1.0000");
  settings.SaveUserString("LangVer", "english");
  settings.SaveUserString("Version", info.Version());
  settings.SaveUserString("StartIn", FromUtf8(info.folder.Utf8()));
  settings.SaveUserString("ExeName", info.exeName);
  CreateDesktopShortcut(environment.shell, info);
}

void CleanUpdater(SettingsStore& settings, Environment& environment) {
  try {
    environment.files.Remove(environment.info.folder / "updater.exe");
  } catch (const RuntimeError&) {
    // The setting is cleared all the same.
  }
  settings.SaveUserString("updater", "");
}

}  // namespace benevix
