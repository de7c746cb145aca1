#pragma once

#include "core/settings_store.h"
#include "platform/environment.h"

namespace benevix {

// Updates the program's own settings at every start: all of them on a first run (`BVXDB` is missing
// or numerically 0), then `ExeName` and `Version`. Removes an updater that has run.
void UpdateOwnSettings(SettingsStore& settings, Environment& environment);

// Writes the settings of a first run and puts the shortcut on the desktop.
void InitSettings(SettingsStore& settings, Environment& environment);

// Deletes the updater and clears the setting `updater`, which says that it has run.
void CleanUpdater(SettingsStore& settings, Environment& environment);

}  // namespace benevix
