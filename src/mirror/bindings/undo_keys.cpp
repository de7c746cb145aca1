#include "mirror/bindings/undo_keys.h"

#include <QKeyEvent>
#include <memory>

namespace benevix {
namespace {

class UndoKeys : public QObject {
 public:
  explicit UndoKeys(QLineEdit& edit) : QObject(&edit), edit_(edit) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride) return QObject::eventFilter(watched, event);
    const auto* const key = static_cast<QKeyEvent*>(event);
    const bool leaves = (key->matches(QKeySequence::Undo) && !edit_.isUndoAvailable()) ||
                        (key->matches(QKeySequence::Redo) && !edit_.isRedoAvailable());
    if (leaves) event->ignore();
    return leaves;
  }

 private:
  QLineEdit& edit_;
};

}  // namespace

void ShareUndoKeys(QLineEdit& edit) {
  edit.installEventFilter(std::make_unique<UndoKeys>(edit).release());
}

}  // namespace benevix
