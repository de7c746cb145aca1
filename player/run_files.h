#pragma once

#include <QStringList>

namespace benevix {

// Plays each script in a process of its own, so that none can take the others with it, passes on
// what it prints and adds the counts up. `program` is this executable, `arguments` stand before the
// file. Gives the exit code.
int RunFiles(const QString& program, const QStringList& arguments, const QStringList& files);

}  // namespace benevix
