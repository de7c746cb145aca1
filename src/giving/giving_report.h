#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "controls/desk.h"
#include "core/settings_store.h"
#include "forms/frmPersInfo.h"
#include "forms/frmReport.h"
#include "giving/report_tables.h"
#include "platform/environment.h"
#include "records/payment_states.h"
#include "session/options_record.h"

namespace benevix {

// The giving report: what was given in a range of days, in pictures, by organization and by
// session; printed, saved, and given again.
class GivingReport {
 public:
  struct Others {
    const frmPersInfo& donor;
    // Puts the gifts of a session into the main window; false when it does not want them.
    std::function<bool(const std::string& date, const std::vector<OptionsRecord>& gifts)> giveAgain;
    std::function<void()> stateChanged;
  };

  GivingReport(frmReport& window, Desk& desk, Environment& environment, SettingsStore& settings,
               PaymentStates& states, Others others)
      : window_(window),
        desk_(desk),
        environment_(environment),
        settings_(settings),
        states_(states),
        others_(std::move(others)) {}

  // Opens at this year, or at the last year in which something was given.
  void mnuReport_Click();
  // The history or what is known of its payments has changed.
  void Refresh();

  void Option1_Click(int index);
  // Enter or leaving a box takes its date.
  void Text1_KeyUp(const EventArgs& args);
  void Text1_LostFocus();
  void Goal_KeyUp(const EventArgs& args);
  void Goal_LostFocus() { SaveGoal(); }
  void Organizations_ColumnClick(int column);
  void Sessions_ItemClick(const EventArgs& args);
  void Sessions_KeyUp(const EventArgs& args);
  void Option2_Click(int index);
  void Command1_Click(int index);

 private:
  void Read();
  void ShowRange();
  void ShowFigures();
  void ShowGoal();
  void ShowSessions(int selected);
  void ShowSelected();
  void Sort();
  void ToggleGifts();
  void TakeDates();
  void GiveAgain();
  void SaveGoal();
  void Tell(const std::string& text);
  [[nodiscard]] int ThisYear() const { return environment_.clock.Now().year; }
  [[nodiscard]] PrintDocument Statement() const;
  // For file names: "2026", or "2025-01-01 to 2026-12-31".
  [[nodiscard]] std::string RangeName() const;
  // The selected session; null without one.
  [[nodiscard]] const GivenSession* Selected() const;

  frmReport& window_;
  Desk& desk_;
  Environment& environment_;
  SettingsStore& settings_;
  PaymentStates& states_;
  Others others_;
  DayRange range_;
  std::shared_ptr<ReportContents> report_;
  std::shared_ptr<const SessionRows> rows_;
  int unfolded_ = -1;
  std::string error_;  // why the history could not be read
};

}  // namespace benevix
