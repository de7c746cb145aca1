#pragma once

#include "controls/desk.h"
#include "core/codec.h"
#include "core/messages.h"
#include "core/settings_store.h"
#include "forms/frmPersInfo.h"
#include "forms/frmTellAFriend.h"
#include "server/server_files.h"

namespace benevix {

// Sends a friend a recommendation. The sender's name and address are stored scrambled in the
// settings `UsrName` and `UsrMail`.
class TellAFriend {
 public:
  TellAFriend(frmTellAFriend& window, const frmPersInfo& donor, Desk& desk, SettingsStore& settings,
              const TextCodec& codec, ServerFiles& server, Messages& messages)
      : window_(window),
        donor_(donor),
        desk_(desk),
        settings_(settings),
        codec_(codec),
        server_(server),
        messages_(messages) {}

  // Begins with the sender of last time or, without one, the donor.
  void Form_Load();
  void Command1_Click(int index);
  // Shows the message that Send would send.
  void ShowMessage();

 private:
  void Send();
  [[nodiscard]] std::string Body() const;
  [[nodiscard]] std::string StoredText(const std::string& name);

  frmTellAFriend& window_;
  const frmPersInfo& donor_;
  Desk& desk_;
  SettingsStore& settings_;
  const TextCodec& codec_;
  ServerFiles& server_;
  Messages& messages_;
};

}  // namespace benevix
