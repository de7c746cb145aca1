#pragma once

#include <functional>
#include <map>
#include <string>

#include "controls/desk.h"
#include "core/messages.h"
#include "forms/frmBVX.h"
#include "forms/frmMail.h"
#include "forms/frmPersInfo.h"
#include "platform/program_info.h"
#include "server/server_files.h"

namespace benevix {

// Writes a message to an organization through the server's mail script.
class Messenger {
 public:
  struct Others {
    const frmPersInfo& contact;
    const frmBVX& main;
    std::function<void()> askForContact;  // opens the contact window
    // Takes from, to, subject and message; gives what went wrong, empty when nothing did.
    std::function<std::string(const std::string&, const std::string&, const std::string&,
                              const std::string&)>
        print;
  };

  Messenger(frmMail& window, Desk& desk, ServerFiles& server, Messages& messages,
            const ProgramInfo& info, Others others)
      : window_(window),
        desk_(desk),
        server_(server),
        messages_(messages),
        info_(info),
        others_(std::move(others)) {}

  // Opens for a mail address; without the user's name or e-mail asks for the contact details first.
  void WriteTo(const std::string& recipient);
  // Shows the window with the focus in the subject; disables the main window.
  void Show();

  void Form_Load();
  void Command1_Click(int index);
  void Close();

 private:
  // What was written to an organization and could not be sent.
  struct Draft {
    std::string subject, message;
  };

  void Send();
  void Print();
  // Keeps what is written for the organization, until it is sent or the program ends.
  void KeepDraft(bool keep);
  void ShowNote(const std::string& note);

  frmMail& window_;
  Desk& desk_;
  ServerFiles& server_;
  Messages& messages_;
  const ProgramInfo& info_;
  Others others_;
  std::map<std::string, Draft> drafts_;  // by the organization's ID
};

}  // namespace benevix
