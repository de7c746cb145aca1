#include "mirror/bindings/typed_text.h"

#include <algorithm>

namespace benevix {

QValidator::State TypedText::validate(QString& input, int& position) const {
  if (isApplying_()) return Acceptable;
  const QString before = current_();
  const auto most = std::min(before.size(), input.size());
  qsizetype head = 0;
  while (head < most && before[head] == input[head]) ++head;
  qsizetype tail = 0;
  while (tail < most - head && before[before.size() - 1 - tail] == input[input.size() - 1 - tail]) {
    ++tail;
  }
  QString kept;
  for (qsizetype i = head; i < input.size() - tail; ++i) {
    if (accepts_(input[i])) kept += input[i];
  }
  const qsizetype removed = input.size() - tail - head - kept.size();
  if (removed == 0) return Acceptable;
  input = input.left(head) + kept + input.right(tail);
  position = static_cast<int>(std::clamp<qsizetype>(position - removed, 0, input.size()));
  return Acceptable;
}

}  // namespace benevix
