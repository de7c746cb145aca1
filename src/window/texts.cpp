#include "window/texts.h"

#include "base/text.h"

namespace benevix {

QString ToQString(const std::string& text) {
  return QString::fromStdString(ToUtf8(text));
}

std::string FromQString(const QString& text) {
  return FromUtf8(text.toStdString());
}

QString WithoutMnemonic(const QString& text) {
  return text.startsWith(QLatin1Char('&')) ? text.mid(1) : text;
}

}  // namespace benevix
