#include "mirror/bindings/typed_text.h"

#include <algorithm>

namespace benevix {

TypedText::TypedText(QLineEdit& edit, Rules rules) : QValidator(&edit), rules_(std::move(rules)) {
  const auto remember = [this, &edit] {
    start_ = edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
  };
  connect(&edit, &QLineEdit::cursorPositionChanged, this, remember);
  connect(&edit, &QLineEdit::selectionChanged, this, remember);
}

QValidator::State TypedText::validate(QString& input, int& position) const {
  if (rules_.isApplying()) return Acceptable;
  const QString before = rules_.current();
  // What was typed stands between the old beginning and the old end. It may repeat what it
  // replaces, so the beginning ends at the latest where the typed text begins, and the end begins
  // at the caret.
  const auto most = std::min(before.size(), input.size());
  qsizetype head = 0;
  while (head < std::min(most, start_) && before[head] == input[head]) ++head;
  const qsizetype longest =
      std::min(most - head, input.size() - std::max<qsizetype>(position, head));
  qsizetype tail = 0;
  while (tail < longest && before[before.size() - 1 - tail] == input[input.size() - 1 - tail]) {
    ++tail;
  }
  const QString typed = input.mid(head, input.size() - tail - head);
  const QString kept = rules_.accepted(typed);
  if (kept == typed) return Acceptable;
  rules_.refused();
  if (kept.isEmpty()) return Invalid;
  input = input.left(head) + kept + input.right(tail);
  position = static_cast<int>(
      std::clamp<qsizetype>(position - typed.size() + kept.size(), 0, input.size()));
  return Acceptable;
}

}  // namespace benevix
