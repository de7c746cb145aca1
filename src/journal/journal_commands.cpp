#include "journal/journal_commands.h"

#include <cstdlib>

#include "base/format.h"

namespace benevix {
namespace {

constexpr const char* kNotKept =
    "The program runs twice. A session that this copy leaves unfinished is not kept.";

// "&" marks a letter in a caption; two stand for one.
std::string WithoutMarks(const std::string& text) {
  std::string caption;
  for (const char c : text) caption.append(c == '&' ? 2 : 1, c);
  return caption;
}

void Name(MenuItem& command, const std::string& word, const Step* step) {
  command.enabled = step != nullptr;
  command.caption = step == nullptr ? word : word + " " + WithoutMarks(step->name);
}

std::string Money(const Timeline& session, const char* field) {
  const std::string& units = session.Fields()[FieldNamed(field)];
  return Format(Currency::FromUnits(std::strtoll(units.c_str(), nullptr, 10)), kSumPattern);
}

std::string Describe(const Timeline& session) {
  const std::size_t donations = session.Rows().size();
  return "Unfinished session of " + session.Time() + ": " + std::to_string(donations) +
         (donations == 1 ? " donation, " : " donations, ") + Money(session, "TotalDonated") +
         " of " + Money(session, "Budget");
}

}  // namespace

void JournalCommands::Show() {
  Name(main_.mnuUndo, "Undo", journal_.ToUndo());
  Name(main_.mnuRedo, "Redo", journal_.ToRedo());
  const Timeline* const unfinished = journal_.Unfinished();
  std::string& text = main_.UnfinishedText.caption;
  text = unfinished != nullptr ? Describe(*unfinished) : "";
  if (journal_.TellsNotKept()) text = kNotKept;
  main_.Unfinished.visible = !text.empty();
  for (Button* button : {&main_.ContinueUnfinished, &main_.StartAfresh}) {
    button->visible = unfinished != nullptr;
  }
}

void JournalCommands::ContinueUnfinished_Click() {
  const RowStates missing = journal_.ContinueUnfinished();
  if (missing.empty()) return;
  std::string text =
      "These organizations are no longer in the list. They are not given, and their money is in "
      "the "
      "Balance again:";
  for (const auto& [row, state] : missing) text += "\r\n" + state.name;
  messages_.Show(text, BoxIcon::Information);
}

void JournalCommands::TellUnrecorded(const SentNote& note) {
  messages_.Show("The session " + note.transactionId + " of " + note.time +
                     (note.certain ? " was sent" : " may have been sent") +
                     ", but the program ended before it was written to the history. Note the "
                     "transaction ID, and ask about it before you send or pay the same again.",
                 BoxIcon::Information);
}

}  // namespace benevix
