#pragma once

#include <QLineEdit>
#include <QValidator>
#include <functional>

namespace benevix {

// Filters what the user types, pastes or drops into a line edit. When nothing of it is let in, the
// edit keeps its text, its selection and what can be undone.
class TypedText : public QValidator {
 public:
  struct Rules {
    std::function<QString()> current;                 // the text before
    std::function<QString(const QString&)> accepted;  // what is let in of what was typed
    std::function<void()> refused;                    // called when something was not
    std::function<bool()> isApplying;  // whether the program writes, whose text is taken as it is
  };

  TypedText(QLineEdit& edit, Rules rules);

  State validate(QString& input, int& position) const override;

 private:
  Rules rules_;
  qsizetype start_ = 0;  // where the next typed text begins: at the caret or the selection
};

}  // namespace benevix
