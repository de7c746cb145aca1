#pragma once

#include "core/messages.h"
#include "forms/frmBVX.h"
#include "journal/journal.h"

namespace benevix {

// What the main window offers of the journal: Undo and Redo, and the strip with a session that the
// last run left unfinished, or which tells that a second copy does not keep its own.
class JournalCommands {
 public:
  JournalCommands(frmBVX& main, Journal& journal, Messages& messages)
      : main_(main), journal_(journal), messages_(messages) {}

  // Names the steps in the two commands and shows or hides the strip. All of it is derived.
  void Show();

  void mnuUndo_Click() { journal_.Undo(); }
  void mnuRedo_Click() { journal_.Redo(); }
  // Names the organizations that could not be taken along.
  void ContinueUnfinished_Click();
  void StartAfresh_Click() { journal_.GiveUpUnfinished(); }

  // Tells of a session that the last run sent, or may have sent, without recording it.
  void TellUnrecorded(const SentNote& note);

 private:
  frmBVX& main_;
  Journal& journal_;
  Messages& messages_;
};

}  // namespace benevix
