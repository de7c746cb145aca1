#pragma once

#include "core/settings_store.h"
#include "platform/surroundings.h"

namespace benevix {

// What the program keeps of itself in its settings is brought up to date at every start: on a first
// run, when `BVXDB` is no version, all of it, then `ExeName` and `Version`. A leftover updater
// goes.
void UpdateOwnSettings(SettingsStore& settings, Surroundings& surroundings);

// The settings of a first run, and the shortcut on the desktop.
void InitSettings(SettingsStore& settings, Surroundings& surroundings);

// Deletes the updater, which has done its work, and its mark.
void CleanUpdater(SettingsStore& settings, Surroundings& surroundings);

}  // namespace benevix
