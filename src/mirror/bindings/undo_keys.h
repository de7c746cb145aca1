#pragma once

#include <QLineEdit>

namespace benevix {

// Leaves the keys of Undo and Redo to the window's commands while the edit has nothing of its own
// to undo or redo; the toolkit's edit would swallow them.
void ShareUndoKeys(QLineEdit& edit);

}  // namespace benevix
