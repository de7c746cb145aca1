#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace benevix {

// The letters that choose among what stands together: the items of one menu, or what Alt reaches in
// a window. Each has a letter of its own: the one its caption marks with "&"; where two mark the
// same, the first keeps it. The others get the first free one of their words' beginnings, or else
// of their letters. Null for a caption that has none left.
[[nodiscard]] std::vector<QChar> Mnemonics(const QStringList& captions);

// The caption with the mark at that letter, at a word's beginning if there is one.
[[nodiscard]] QString WithMnemonic(QString caption, QChar letter);

// The caption of a label that leads to no box, without its mark, which can only be its first
// character; any other "&" is text.
[[nodiscard]] QString WithoutMnemonic(const QString& caption);

}  // namespace benevix
