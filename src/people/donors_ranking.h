#pragma once

#include "controls/desk.h"
#include "core/codec.h"
#include "core/messages.h"
#include "core/settings_store.h"
#include "forms/frmDonRankg.h"

namespace benevix {

// The name of the donor's entry in the ranking, stored scrambled in the setting `RankOpt`: the
// option's index, ",", the business name.
class DonorsRanking {
 public:
  DonorsRanking(frmDonRankg& window, Desk& desk, SettingsStore& settings, const TextCodec& codec,
                Messages& messages)
      : window_(window), desk_(desk), settings_(settings), codec_(codec), messages_(messages) {}

  void Form_Load();
  void Option1_Click(int index);
  void Command1_Click();

  // The ranking part of the session notice: ",0" without participation, else ",1" and, once a name
  // was chosen, "," and the scrambled choice. A damaged `RankOpt` counts as empty.
  [[nodiscard]] std::string ForNotice(bool takesPart);

 private:
  // The stored choice; empty without one that can be read.
  [[nodiscard]] std::string Stored() const;

  frmDonRankg& window_;
  Desk& desk_;
  SettingsStore& settings_;
  const TextCodec& codec_;
  Messages& messages_;
};

}  // namespace benevix
