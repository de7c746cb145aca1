#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace benevix {

class ProgramRunner;

// A line that cannot be done; says why.
class CannotBeDone : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A check that does not hold. Both texts are UTF-8.
struct Mismatch {
  std::string expected;
  std::string got;
};

// One kind of script line.
struct LineKind {
  // The command and its words: lower case stands for itself, [X] may be left out, X... stands for
  // any number; NUMBER, FRACTION, SECONDS, MOMENT, ROOT, FOLDER, ANSWER and KEY must be such, any
  // other upper-case word takes any text.
  std::string_view form;
  // Takes the words behind the command, {...} filled in. Raises CannotBeDone, Mismatch.
  void (*run)(ProgramRunner& runner, const std::vector<std::string>& words);
  // The lines that follow up to a lone "." are its last word.
  bool hasBody = false;
  bool checks = false;
};

const std::vector<LineKind>& SettingUpLines();
const std::vector<LineKind>& DrivingLines();
const std::vector<LineKind>& CheckingLines();

// The kind of a line with these words, the command first. Raises UnreadableLine.
const LineKind& KindOf(const std::vector<std::string>& words);

// The line "call": takes the routine, its arguments, "=" and the result.
void CallRoutine(ProgramRunner& runner, const std::vector<std::string>& words);

struct ScriptLine {
  int number = 0;  // from 1
  const LineKind* kind = nullptr;
  std::vector<std::string> words;  // behind the command
};

// A script that cannot be read: "FILE:LINE: reason", "FILE: reason" when no line is to blame.
class UnreadableScript : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Reads a script file. Raises UnreadableScript.
std::vector<ScriptLine> ReadScript(const std::string& file);

}  // namespace benevix
