#pragma once

#include <QValidator>
#include <functional>

namespace benevix {

// Lets the user's text into a line edit character by character: what was typed, pasted or dropped
// is what differs from the text that stood there, and of it only the accepted characters stay.
class TypedText : public QValidator {
 public:
  // `current` gives the text that stands; `accepts` whether a character may be typed;
  // `isApplying` whether the program writes, which passes whole.
  TypedText(QObject* parent, std::function<QString()> current, std::function<bool(QChar)> accepts,
            std::function<bool()> isApplying)
      : QValidator(parent),
        current_(std::move(current)),
        accepts_(std::move(accepts)),
        isApplying_(std::move(isApplying)) {}

  State validate(QString& input, int& position) const override;

 private:
  std::function<QString()> current_;
  std::function<bool(QChar)> accepts_;
  std::function<bool()> isApplying_;
};

}  // namespace benevix
