#include "mirror/bindings/mnemonics.h"

#include <QSet>

namespace benevix {
namespace {

QChar MarkedLetter(const QString& caption) {
  const qsizetype mark = caption.indexOf(QLatin1Char('&'));
  return mark >= 0 && mark + 1 < caption.size() ? caption[mark + 1].toUpper() : QChar();
}

bool BeginsWord(const QString& text, qsizetype at) {
  return at == 0 || !text[at - 1].isLetterOrNumber();
}

QChar FreeLetter(const QString& caption, const QSet<QChar>& taken) {
  for (const bool beginning : {true, false}) {
    for (qsizetype i = 0; i < caption.size(); ++i) {
      const QChar letter = caption[i].toUpper();
      if (beginning && !BeginsWord(caption, i)) continue;
      // Other letters are on no keyboard, or on few.
      if (letter >= QLatin1Char('A') && letter <= QLatin1Char('Z') && !taken.contains(letter)) {
        return letter;
      }
    }
  }
  return {};
}

}  // namespace

std::vector<QChar> Mnemonics(const QStringList& captions) {
  std::vector<QChar> letters;
  QSet<QChar> taken;
  for (const QString& caption : captions) {
    const QChar marked = MarkedLetter(caption);
    letters.push_back(taken.contains(marked) ? QChar() : marked);
    if (!marked.isNull()) taken.insert(marked);
  }
  for (qsizetype i = 0; i < captions.size(); ++i) {
    QChar& letter = letters[static_cast<std::size_t>(i)];
    if (!letter.isNull()) continue;
    letter = FreeLetter(captions[i], taken);
    if (!letter.isNull()) taken.insert(letter);
  }
  return letters;
}

QString WithMnemonic(QString caption, QChar letter) {
  const bool marked = !letter.isNull() && MarkedLetter(caption) == letter;
  if (marked) return caption;
  caption.remove(QLatin1Char('&'));
  if (letter.isNull()) return caption;
  qsizetype at = caption.indexOf(letter, 0, Qt::CaseInsensitive);
  for (qsizetype i = at; i >= 0; i = caption.indexOf(letter, i + 1, Qt::CaseInsensitive)) {
    if (!BeginsWord(caption, i)) continue;
    at = i;
    break;
  }
  return at < 0 ? caption : caption.insert(at, QLatin1Char('&'));
}

QString WithoutMnemonic(const QString& caption) {
  return caption.startsWith(QLatin1Char('&')) ? caption.mid(1) : caption;
}

}  // namespace benevix
