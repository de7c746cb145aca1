#include "mirror/look/texts.h"

#include "base/text.h"

namespace benevix {

QString ToQString(const std::string& text) {
  return QString::fromStdString(ToUtf8(text));
}

QString Drawn(const std::string& text) {
  constexpr std::size_t most = 100'000;  // bytes
  return text.size() <= most ? ToQString(text) : ToQString(text.substr(0, most)) + QChar(0x2026);
}

std::string FromQString(const QString& text) {
  return FromUtf8(text.toStdString());
}

}  // namespace benevix
