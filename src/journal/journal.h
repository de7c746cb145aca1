#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "base/runtime_error.h"
#include "controls/desk.h"
#include "database/organization_database.h"
#include "journal/journal_text.h"
#include "journal/session_fields.h"
#include "journal/timeline.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace benevix {

// The journal of the session. After each event it notes what the event changed of the session's
// money or rows as one step, which can be undone and redone, and keeps the steps in a file from
// which the next start of the program can go on.
class Journal {
 public:
  // `report` tells the user that the file cannot be read or written, and why.
  Journal(SessionPlaces places, Desk& desk, const OrganizationDatabase& database, Files& files,
          const Clock& clock, FilePath file, std::function<void(const std::string& reason)> report);

  // Reads what the last run left in the file. To be called once the list stands. With a file that
  // is another running copy's, the file is left alone and the steps stand in memory only.
  void Open(bool holdsFile);

  // Notes a step if the event changed the session's money or rows.
  void AfterEvent();
  // Names the step that the present event makes; otherwise it is called by what it changed.
  void NameStep(std::string name) { name_ = std::move(name); }

  // The step that would be undone or redone next; null without one.
  [[nodiscard]] const Step* ToUndo() const { return timeline_.ToUndo(); }
  [[nodiscard]] const Step* ToRedo() const { return timeline_.ToRedo(); }
  void Undo();
  void Redo();

  // The session that the last run left unfinished, until it is continued, given up or replaced by a
  // new step; null without one.
  [[nodiscard]] const Timeline* Unfinished() const { return unfinished_ ? &*unfinished_ : nullptr; }
  // Puts it in the place of the present session. Organizations that are no longer in the list are
  // left out, with their money in the Balance again, and nothing before can be undone then. Returns
  // their rows.
  RowStates ContinueUnfinished();
  void GiveUpUnfinished();
  // The file is another running copy's, so that this copy's session does not survive its end. Until
  // the first step.
  [[nodiscard]] bool TellsNotKept() const { return tellsNotKept_; }

  // The notice of the session is about to be sent under this ID. Until it is known whether it was,
  // and until its record stands in the history, the file tells so.
  void Sending(const std::string& transactionId);
  void NotSent();
  // What was sent is not undone any more: a new history begins.
  void Sent();
  void Recorded();
  // What the last run may have sent without recording it, and that it was told.
  [[nodiscard]] const std::optional<SentNote>& Unrecorded() const { return unrecorded_; }
  void ForgetUnrecorded();

 private:
  [[nodiscard]] const ListView& List() const { return places_.main.ListView1; }
  [[nodiscard]] std::string Now() const;
  [[nodiscard]] std::optional<RowState> StateOf(int row) const;
  [[nodiscard]] RowStates PresentRows() const;
  // The session as it stands, without steps.
  [[nodiscard]] Timeline PresentSession() const;

  // The rows that the event changed.
  std::map<int, std::optional<RowState>> TakeChangedRows();
  // Follows a list that was loaded anew.
  void FollowList();
  // Where the known rows stand in the present list; the missing ones are left out.
  [[nodiscard]] std::map<int, int> PlacesInList(const RowStates& known) const;
  // Brings the window and these rows to where the timeline stands.
  void Show(const std::set<int>& rows);
  void ReturnMoney(const RowStates& missing);

  // What the file must be told first of what changed without a step. Where it does not tell what
  // came before, it is written anew, and there is nothing to add.
  [[nodiscard]] std::string Amended(const SessionFields& fields) const;
  // Adds the lines to the file, or writes it anew when it does not tell what came before.
  void Write(const std::string& lines);
  void RemoveFile();
  void Report(const RuntimeError& error);  // once in a run

  SessionPlaces places_;
  Desk& desk_;
  const OrganizationDatabase& database_;
  Files& files_;
  const Clock& clock_;
  FilePath file_;
  std::function<void(const std::string&)> report_;

  Timeline timeline_;
  int loads_ = 0;  // of the list, when the rows of the timeline were last found in it
  std::string name_;
  std::optional<Timeline> unfinished_;
  std::optional<SentNote> sent_;  // of this run
  std::optional<SentNote> unrecorded_;
  bool holdsFile_ = false;
  bool tellsNotKept_ = false;
  bool fileFollows_ = false;  // the file tells where the timeline stands
  SessionFields standing_;    // where the file stands
  bool reported_ = false;
};

}  // namespace benevix
