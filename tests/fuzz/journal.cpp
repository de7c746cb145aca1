#include <cstdint>
#include <cstdio>

#include "base/lines.h"
#include "journal/journal_text.h"
#include "targets.h"

namespace benevix {
namespace {

// The lines of the input with their checksums, which no fuzzer finds.
std::string Guarded(std::string_view input) {
  std::string text;
  for (const std::string_view line : Lines(input)) {
    std::uint32_t sum = 2166136261U;
    for (const char c : line) {
      sum = static_cast<std::uint32_t>((sum ^ static_cast<unsigned char>(c)) * 16777619ULL);
    }
    char digits[16];
    std::snprintf(digits, sizeof digits, "%08x\t", sum);
    text += digits + std::string(line) + "\n";
  }
  return text;
}

}  // namespace

void CheckJournal(std::string_view input) {
  frmBVX main;
  frmPayOpt payment;
  SessionValues values;
  const SessionPlaces places{main, payment, values};
  const SessionFields defaults = ReadFields(places);
  ReadJournalText(input, defaults);
  const JournalContents contents = ReadJournalText(Guarded(input), defaults);
  if (!contents.session) return;
  Timeline session = *contents.session;
  const std::string text = TimelineText(session);
  const JournalContents again = ReadJournalText(text, defaults);
  Require(again.session && TimelineText(*again.session) == text, "a session is read as written");
  Require(again.session->Fields() == session.Fields() && again.session->Rows() == session.Rows() &&
              again.session->Done() == session.Done(),
          "and stands where it stood");
  while (session.ToUndo() != nullptr) session.Undo();
  while (session.Done() < contents.session->Done()) session.Redo();
  Require(
      session.Fields() == contents.session->Fields() && session.Rows() == contents.session->Rows(),
      "what was undone and redone is the same");
  WriteFields(places, session.Fields());
}

}  // namespace benevix
