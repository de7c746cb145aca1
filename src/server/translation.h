#pragma once

#include <string>

#include "controls/desk.h"
#include "core/settings_store.h"
#include "forms/frmBVX.h"
#include "forms/frmInfo.h"
#include "forms/frmPrefsTranslate.h"
#include "help/information_viewer.h"
#include "platform/environment.h"

namespace benevix {

// Translates an organization's information page through an online service and shows the answer.
class Translation {
 public:
  struct Windows {
    frmPrefsTranslate& preferences;
    frmInfo& info;
    const frmBVX& main;
  };

  Translation(Windows windows, InformationViewer& viewer, Desk& desk, SettingsStore& settings,
              Environment& environment)
      : windows_(windows),
        viewer_(viewer),
        desk_(desk),
        settings_(settings),
        environment_(environment) {}

  // TRANSLATE in the viewer: opens the preferences.
  void Label3_Click();
  void Form_Load();
  void Translate();
  // Stores the preferences and closes the window.
  void Close();

 private:
  // Translate and Close both remember them.
  void StorePreferences();
  [[nodiscard]] std::string RequestAddress() const;
  // The service's answer, or empty when none came.
  [[nodiscard]] std::string Fetch() const;

  Windows windows_;
  InformationViewer& viewer_;
  Desk& desk_;
  SettingsStore& settings_;
  Environment& environment_;
};

// The page to show for a service's answer: the text after its first ">", or a sentence that says
// what went wrong.
std::string TranslatedPage(const std::string& answer);

}  // namespace benevix
