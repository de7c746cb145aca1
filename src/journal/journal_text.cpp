#include "journal/journal_text.h"

#include <array>
#include <charconv>
#include <cstdio>

#include "base/lines.h"
#include "database/organization_list.h"

namespace benevix {
namespace {

constexpr std::array kWrittenColumns = {column::kAmount, column::kPool, column::kFrom,
                                        column::kRecord, column::kFee,  column::kCardFee};

// FNV-1a, 32 bits (http://www.isthe.com/chongo/tech/comp/fnv): tells a torn line from a whole one.
std::string Checksum(std::string_view text) {
  std::uint32_t sum = 2166136261U;
  for (const char c : text) sum = (sum ^ static_cast<unsigned char>(c)) * 16777619U;
  char digits[16];
  std::snprintf(digits, sizeof digits, "%08x", sum);
  return digits;
}

// Builds one line.
class JournalLine {
 public:
  explicit JournalLine(const char* kind) : text_(kind) {}

  JournalLine& operator<<(std::string_view word) {
    text_ += '\t';
    for (const char c : word) {
      switch (c) {
        case '\t':
          text_ += "\\t";
          break;
        case '\r':
          text_ += "\\r";
          break;
        case '\n':
          text_ += "\\n";
          break;
        case '\\':
          text_ += "\\\\";
          break;
        default:
          text_ += c;
      }
    }
    return *this;
  }

  JournalLine& operator<<(const std::pair<const int, RowState>& row) {
    *this << "ROW" << std::to_string(row.first) << row.second.id << row.second.name;
    for (const int column : kWrittenColumns) {
      *this << row.second.cells[static_cast<std::size_t>(column)];
    }
    return *this;
  }

  void AddField(std::size_t field, const std::string& value) {
    *this << "FIELD" << FieldName(field) << value;
  }

  [[nodiscard]] std::string Text() const { return Checksum(text_) + "\t" + text_ + "\n"; }

 private:
  std::string text_;
};

// Takes a line apart, word by word.
class Words {
 public:
  explicit Words(std::string_view line) : rest_(line) {}

  [[nodiscard]] bool AtEnd() const { return rest_.empty(); }

  std::string Next() {
    std::string word;
    const std::string_view written = CutField(rest_, '\t');
    for (std::size_t i = 0; i < written.size(); ++i) {
      if (written[i] != '\\' || i + 1 == written.size()) {
        word += written[i];
        continue;
      }
      const char c = written[++i];
      word += c == 't' ? '\t' : c == 'r' ? '\r' : c == 'n' ? '\n' : c;
    }
    return word;
  }

  int NextNumber() {
    const std::string word = Next();
    int number = 0;
    std::from_chars(word.data(), word.data() + word.size(), number);
    return number;
  }

 private:
  std::string_view rest_;
};

// What "..." stands for.
struct Changes {
  SessionFields fields;
  std::map<int, std::optional<RowState>> rows;
};

Changes ReadChanges(Words& words, SessionFields fields) {
  Changes changes{std::move(fields), {}};
  while (!words.AtEnd()) {
    const std::string what = words.Next();
    if (what == "FIELD") {
      const std::size_t field = FieldNamed(words.Next());
      std::string value = words.Next();
      if (field < changes.fields.size()) changes.fields[field] = std::move(value);
    } else if (what == "ROW") {
      const int number = words.NextNumber();
      RowState row{words.Next(), words.Next(), {}};
      for (const int column : kWrittenColumns) {
        row.cells[static_cast<std::size_t>(column)] = words.Next();
      }
      changes.rows[number] = std::move(row);
    } else if (what == "GONE") {
      changes.rows[words.NextNumber()] = std::nullopt;
    }
  }
  return changes;
}

RowStates Present(const std::map<int, std::optional<RowState>>& rows) {
  RowStates present;
  for (const auto& [number, row] : rows) {
    if (row) present[number] = *row;
  }
  return present;
}

void ApplyToSession(const std::string& kind, Words& words, Timeline& session) {
  if (kind == "step") {
    std::string time = words.Next();
    std::string name = words.Next();
    const Changes changes = ReadChanges(words, session.Fields());
    session.Note(std::move(time), std::move(name), changes.fields, changes.rows);
  } else if (kind == "amend") {
    session.Amend(ReadChanges(words, session.Fields()).fields);
  } else if (kind == "undo" && session.ToUndo() != nullptr) {
    session.Undo();
  } else if (kind == "redo" && session.ToRedo() != nullptr) {
    session.Redo();
  }
}

// Carries a line out, if it fits what came before it.
void Apply(std::string_view line, const SessionFields& defaults, JournalContents& contents) {
  Words words(line);
  const std::string kind = words.Next();
  if (kind == "sending" || kind == "sent") {
    const std::string time = words.Next();
    contents.sent = {time, words.Next(), kind == "sent"};
  } else if (kind == "settled") {
    contents.sent.reset();
  } else if (kind == "base") {
    std::string time = words.Next();
    Changes changes = ReadChanges(words, defaults);
    contents.session.emplace(std::move(time), std::move(changes.fields), Present(changes.rows));
  } else if (contents.session) {
    ApplyToSession(kind, words, *contents.session);
  }
}

}  // namespace

std::string BaseLine(const std::string& time, const SessionFields& fields, const RowStates& rows) {
  JournalLine line("base");
  line << time;
  for (std::size_t field = 0; field < fields.size(); ++field) line.AddField(field, fields[field]);
  for (const auto& row : rows) line << row;
  return line.Text();
}

std::string StepLine(const Step& step) {
  JournalLine line("step");
  line << step.time << step.name;
  for (const FieldChange& change : step.fields) {
    if (change.before != change.after) line.AddField(change.field, change.after);
  }
  for (const RowChange& change : step.rows) {
    if (change.after) {
      line << std::pair<const int, RowState>(change.row, *change.after);
    } else {
      line << "GONE" << std::to_string(change.row);
    }
  }
  return line.Text();
}

std::string AmendLine(const SessionFields& standing, const SessionFields& fields) {
  if (standing == fields) return {};
  JournalLine line("amend");
  for (std::size_t field = 0; field < fields.size(); ++field) {
    if (standing[field] != fields[field]) line.AddField(field, fields[field]);
  }
  return line.Text();
}

std::string UndoLine() {
  return JournalLine("undo").Text();
}

std::string RedoLine() {
  return JournalLine("redo").Text();
}

std::string SentLine(const SentNote& note) {
  return (JournalLine(note.certain ? "sent" : "sending") << note.time << note.transactionId).Text();
}

std::string SettledLine() {
  return JournalLine("settled").Text();
}

std::string TimelineText(Timeline timeline) {
  const std::size_t done = timeline.Done();
  while (timeline.ToUndo() != nullptr) timeline.Undo();
  std::string text = BaseLine(timeline.Time(), timeline.Fields(), timeline.Rows());
  while (const Step* const step = timeline.ToRedo()) {
    text += StepLine(*step);
    SessionFields standing = timeline.Fields();
    for (const FieldChange& change : step->fields) standing[change.field] = change.after;
    timeline.Redo();
    text += AmendLine(standing, timeline.Fields());
  }
  for (std::size_t undone = timeline.Done(); undone > done; --undone) text += UndoLine();
  return text;
}

JournalContents ReadJournalText(std::string_view text, const SessionFields& defaults) {
  JournalContents contents;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) break;  // torn
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end + 1);
    const std::string_view checksum = CutField(line, '\t');
    if (checksum != Checksum(line)) break;
    Apply(line, defaults, contents);
  }
  return contents;
}

}  // namespace benevix
