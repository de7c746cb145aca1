#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "journal/timeline.h"

namespace benevix {

// The journal as a text of lines, each whole or not there at all: a checksum (8 hexadecimal
// digits), the kind of the line and what belongs to it, separated by tabs. A tab, line end or
// backslash within a text is written as \t, \r, \n or \\.
//
//   base TIME ...         where the session stood before its first step
//   step TIME NAME ...    a step led to this
//   amend ...             something that is no step led to this
//   undo, redo
//   sending TIME ID       the notice of a session is about to be sent
//   sent TIME ID          it was sent, and its record is not yet in the history
//   settled               it was not accepted, or its record is in the history
//
// "..." is any number of FIELD NAME VALUE, of ROW NUMBER ID NAME and the texts of its written
// columns (Amount, D.Pool, From, record, Fee, CC Fee), and of GONE NUMBER.

// The notice of a session that the history may not hold.
struct SentNote {
  std::string time, transactionId;
  bool certain = false;  // the server confirmed it
};

std::string BaseLine(const std::string& time, const SessionFields& fields, const RowStates& rows);
std::string StepLine(const Step& step);
// What changed since the fields that the text stands at; empty without a difference.
std::string AmendLine(const SessionFields& standing, const SessionFields& fields);
std::string UndoLine();
std::string RedoLine();
std::string SentLine(const SentNote& note);
std::string SettledLine();

// The lines of a whole session.
std::string TimelineText(Timeline timeline);

struct JournalContents {
  std::optional<Timeline> session;
  std::optional<SentNote> sent;
};
// Reads up to the first damaged line. A field that the text does not name is as in `defaults`.
JournalContents ReadJournalText(std::string_view text, const SessionFields& defaults);

}  // namespace benevix
