#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace benevix {

class Stage;

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
  // any number; NUMBER, FRACTION, MOMENT, ROOT, FOLDER, ANSWER and KEY must be such, any other
  // upper-case word takes any text.
  std::string_view form;
  // Takes the words behind the command, {...} filled in. Raises CannotBeDone, Mismatch.
  void (*run)(Stage& stage, const std::vector<std::string>& words);
  // The lines that follow up to a lone "." are its last word.
  bool hasBody = false;
  bool checks = false;
};

const std::vector<LineKind>& SettingUpLines();
const std::vector<LineKind>& DrivingLines();
const std::vector<LineKind>& CheckingLines();

// The kind of a line with these words, the command first. Raises UnreadableLine.
const LineKind& KindOf(const std::vector<std::string>& words);

}  // namespace benevix
