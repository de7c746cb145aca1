#pragma once

#include <QValidator>
#include <functional>

namespace benevix {

// Lets the user's text into a line edit character by character. What was typed, pasted or dropped
// is found by comparing with the text before; of it only the accepted characters stay.
class TypedText : public QValidator {
 public:
  // `current` gives the text before; `accepts` says whether a character may be typed; `isApplying`
  // whether it is the program that writes, whose text is taken as it is.
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
