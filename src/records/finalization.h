#pragma once

#include <string>

#include "controls/desk.h"
#include "core/codec.h"
#include "core/messages.h"
#include "core/settings_store.h"
#include "forms/frmBVX.h"
#include "forms/frmInfo.h"
#include "forms/frmPayOpt.h"
#include "forms/frmPersInfo.h"
#include "records/history.h"
#include "server/server_files.h"
#include "session/session_values.h"

namespace benevix {

// Finalizes a session: makes its transaction, notifies the server, opens the payment page and
// records the history.
class Finalization {
 public:
  // The windows it reads and writes.
  struct Windows {
    frmBVX& main;
    frmPayOpt& payment;
    const frmPersInfo& contact;
    frmInfo& viewer;
  };

  Finalization(Windows windows, const SessionValues& values, FeeRates& rates, RunValues& run,
               Desk& desk, ServerFiles& server, SettingsStore& settings, const TextCodec& codec,
               Messages& messages, History& history, Surroundings& surroundings)
      : windows_(windows),
        values_(values),
        rates_(rates),
        run_(run),
        desk_(desk),
        server_(server),
        settings_(settings),
        codec_(codec),
        messages_(messages),
        history_(history),
        surroundings_(surroundings) {}

  // The Continue button.
  void Command1_Click();

  // `heading` becomes the session's heading line. Without a payment method its window is shown and
  // nothing else happens.
  void Finalize(std::string& heading);

  // The heading of the last finalized session, for its printout.
  [[nodiscard]] const std::string& LastHeading() const { return lastHeading_; }
  [[nodiscard]] const SessionRecord& LastRecord() const { return lastRecord_; }

 private:
  // What is prepared before anything is sent.
  struct Prepared {
    int option = 0;
    std::string contact;  // scrambled
    std::string records;  // the organizations, and the ranking
    SessionRecord session;
  };

  void Run(int option, std::string& heading);
  [[nodiscard]] Prepared Prepare(int option);
  [[nodiscard]] std::string ContactText() const;
  [[nodiscard]] std::string RankingText();
  // Whether the server took the notice; the program ends when the notice has an empty field.
  [[nodiscard]] bool SendNotice(const Prepared& prepared);
  void OpenPaymentPage(const Prepared& prepared);
  void RestorePointer() { windows_.main.mousePointer = MousePointer::Default; }
  void ShowUnavailable();

  Windows windows_;
  const SessionValues& values_;
  FeeRates& rates_;
  RunValues& run_;
  Desk& desk_;
  ServerFiles& server_;
  SettingsStore& settings_;
  const TextCodec& codec_;
  Messages& messages_;
  History& history_;
  Surroundings& surroundings_;
  std::string lastHeading_;
  SessionRecord lastRecord_;
};

}  // namespace benevix
