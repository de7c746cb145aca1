#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace benevix {

// The mnemonic letters of captions among which the user chooses: the items of one menu, or all that
// Alt can reach in a window. Each has a letter of its own: the one that it marks with "&"; where
// two mark the same, the first keeps it. The others get the first free letter that begins a word of
// theirs, or else any of theirs that is free. Null for a caption without a free letter.
[[nodiscard]] std::vector<QChar> Mnemonics(const QStringList& captions);

// The caption with "&" before that letter: where it begins a word, or else at its first place.
[[nodiscard]] QString WithMnemonic(QString caption, QChar letter);

// The caption of a label that leads to no box, without its mark, which can only be its first
// character; any other "&" is text.
[[nodiscard]] QString WithoutMnemonic(const QString& caption);

}  // namespace benevix
